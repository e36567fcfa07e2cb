#pragma once

#include <QDBusContext>
#include <QObject>

#include "core/values/locale.h"
#include "desk/model/desk.h"

namespace service {

// The desk's contact page on the bus, with the members of contract/contact_view.xml.
class ContactViewObject : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    // Dates in the list's fields are written in the locale.
    ContactViewObject(model::Desk& desk, const values::Locale& locale) : desk_(desk), locale_(locale) {}

    QString GetActiveTab();
    void SetActiveTab(const QString& tab);
    void CreateLookup(const QString& contacts);
    int GetCount();
    QString Goto(const QString& contact);
    int GetFilter(QString& dates, QString& users);
    void SetFilter(int mask, const QString& dates, const QString& users);
    int GetRowCount();
    QString GetField(int field, int row);
    void SelectRow(int row, bool selected);

private:
    model::ContactView& view() const;                 // fails when no database is open
    model::ContactView& view_with_row(int row) const; // fails also when its list has no such row

    model::Desk& desk_;
    const values::Locale& locale_;
};

} // namespace service
