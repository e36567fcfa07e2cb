#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include "adapters/bus/application_bridge.h"
#include "contract/application_proxy.h"
#include "contract/aux_commands_proxy.h"
#include "contract/contact_view_proxy.h"
#include "core/act/application.h"
#include "core/values/failure.h"

namespace bus {

values::Failure failure_of(const QDBusError& error);

// What the desk answered. Waits for it without taking events; an error fails with 440.
template <typename Reply>
Reply answered(Reply reply) {
    reply.waitForFinished();
    if (reply.isError())
        throw failure_of(reply.error());
    return reply;
}

class Link : public QObject {
    Q_OBJECT

public:
    Link(const QDBusConnection& bus, Notices* notices);

    bool desk_runs() const;
    ApplicationProxy& application() { return application_; }
    ContactViewProxy& contact_view() { return contact_view_; }
    AuxCommandsProxy& aux_commands() { return aux_commands_; }

    // As act::Application::Command, see application_bridge.h.
    void run(act::CommandNumber number);
    bool waits() const { return waits_; }
    void abandon() { emit abandoned(); } // the wait, see application_bridge.h
    void tell_loss() const;

signals:
    void desk_gone(); // it has left the bus, or the bus has ended
    void wait_ended();
    void abandoned();

private:
    void wait_for(act::CommandNumber number);

    QDBusConnection bus_;
    ApplicationProxy application_;
    ContactViewProxy contact_view_;
    AuxCommandsProxy aux_commands_;
    QDBusServiceWatcher departure_;
    Notices* notices_;
    bool waits_ = false;
};

} // namespace bus
