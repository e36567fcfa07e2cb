#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>

#include "desk/model/desk.h"

#include <optional>

namespace service {

// The desk's application interface on the bus, with the members of contract/application.xml.
class ApplicationObject : public QObject, protected QDBusContext {
    Q_OBJECT

public:
    explicit ApplicationObject(model::Desk& desk) : desk_(desk) {}

    int OpenDatabases() const;
    void OpenFile(const QString& path);
    QString GetOpenDBName() const;
    void Command(int number);

signals:
    void DatabaseClosed();
    void UserWantsToClose();

private:
    void begin(act::CommandNumber number);
    void finish();

    struct Caller {
        QDBusConnection bus;
        QDBusMessage call;
    };
    model::Desk& desk_;
    std::optional<Caller> waiting_; // for the command under way to finish
};

} // namespace service
