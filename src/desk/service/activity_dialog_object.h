#pragma once

#include <QDBusContext>
#include <QObject>

#include "service/desk.h"

namespace service {

// The dialog that a command has opened, on the bus, with the members of contract/activity_dialog.xml.
class ActivityDialogObject : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    explicit ActivityDialogObject(Desk& desk) : desk_(desk) {}

    QString OpenDialog() const;
    void Fill(const QString& type, const QString& date, const QString& time, const QString& duration,
              const QString& regarding, const QString& priority, const QString& scheduled_for);
    void ShowTab(const QString& tab);

signals:
    void Opened(const QString& kind);

private:
    ActivityDialog& dialog() const; // fails when none is open

    Desk& desk_;
};

} // namespace service
