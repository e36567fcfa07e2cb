#pragma once

#include <QDBusContext>
#include <QObject>

#include "desk/model/desk.h"

namespace service {

// The dialog that a command has opened, on the bus, with the members of contract/activity_dialog.xml.
class ActivityDialogObject : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    explicit ActivityDialogObject(model::Desk& desk) : desk_(desk) {}

    QString OpenDialog() const;
    void Fill(const QString& type, const QString& date, const QString& time, const QString& duration,
              const QString& regarding, const QString& priority, const QString& scheduled_for);
    void ShowTab(const QString& tab);

signals:
    void Opened(const QString& kind);

private:
    model::ActivityDialog& dialog() const; // fails when none is open

    model::Desk& desk_;
};

} // namespace service
