#include "adapters/bus/application_link.h"

#include "adapters/bus/application_input_shield.h"
#include "adapters/bus/application_pulse.h"
#include "contract/names.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <QScopeGuard>
#include <QTimer>

#include <limits>
#include <optional>
#include <utility>

namespace bus {
namespace {

using values::Failure;
using values::FailureNumber;

constexpr int answer_milliseconds = 2000;
constexpr int departure_milliseconds = 3000; // between the desk's promise to end and its end
constexpr int without_limit = std::numeric_limits<int>::max();

constexpr auto silent = "The contact desk doesn't answer.";
constexpr auto not_running = "The contact desk isn't running.";

// A call without a limit that gets no reply has lost the one who was to give it.
bool is_lost(const QDBusError& error) {
    return error.type() == QDBusError::NoReply || error.type() == QDBusError::Disconnected;
}

} // namespace

values::Failure failure_of(const QDBusError& error) {
    const auto sentence = [&]() -> QString {
        if (error.name() == contract::failure_error)
            return error.message();
        switch (error.type()) {
        case QDBusError::ServiceUnknown:
            return not_running;
        case QDBusError::NoReply:
        case QDBusError::Timeout:
        case QDBusError::TimedOut:
            return silent;
        case QDBusError::Disconnected:
        case QDBusError::NoServer:
            return "The contact desk can't be reached: there is no session bus.";
        default:
            return "The contact desk can't be reached: " + error.message();
        }
    };
    return {FailureNumber::automation, contract::from_wire(sentence())};
}

Link::Link(const QDBusConnection& bus, Notices* notices)
    : bus_(bus), application_(contract::bus_name, contract::application_path, bus),
      contact_view_(contract::bus_name, contract::contact_view_path, bus),
      aux_commands_(contract::bus_name, contract::aux_commands_path, bus),
      departure_(contract::bus_name, bus, QDBusServiceWatcher::WatchForUnregistration), notices_(notices) {
    application_.setTimeout(answer_milliseconds);
    contact_view_.setTimeout(answer_milliseconds);
    aux_commands_.setTimeout(answer_milliseconds);
    connect(&departure_, &QDBusServiceWatcher::serviceUnregistered, this, &Link::desk_gone);
    bus_.connect({}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected", this,
                 SIGNAL(desk_gone()));
}

bool Link::desk_runs() const {
    return bus_.isConnected() && bus_.interface()->isServiceRegistered(contract::bus_name);
}

void Link::run(act::CommandNumber number) {
    if (waits_)
        throw Failure(FailureNumber::automation, "The contact desk is still busy with another command.");
    waits_ = true;
    const auto end = qScopeGuard([this] {
        waits_ = false;
        emit wait_ended();
    });
    wait_for(number);
}

void Link::wait_for(act::CommandNumber number) {
    if (!desk_runs())
        throw Failure(FailureNumber::automation, not_running);
    const bool closing = number == act::CommandNumber::close_application;
    ApplicationProxy patient(contract::bus_name, contract::application_path, bus_);
    patient.setTimeout(without_limit);

    std::optional<InputShield> shield(std::in_place);
    QEventLoop loop;
    QDBusPendingReply<> reply = patient.Command(static_cast<int>(number));
    QDBusPendingCallWatcher watcher(reply);
    connect(this, &Link::desk_gone, &loop, [&] {
        if (!desk_runs()) // or it is old news of a desk that has been started again
            loop.quit();
    });
    connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, [&] {
        if (closing && !reply.isError())
            QTimer::singleShot(departure_milliseconds, &loop, &QEventLoop::quit);
        else
            loop.quit();
    });
    bool is_given_up = false;
    std::optional<Pulse> pulse;
    if (notices_)
        pulse.emplace(
            patient,
            [&] {
                shield.reset();
                notices_->show_silence([&] {
                    is_given_up = true;
                    loop.quit();
                });
            },
            [&] {
                notices_->hide_silence();
                shield.emplace();
            });
    bool is_abandoned = false;
    connect(this, &Link::abandoned, &loop, [&] {
        is_abandoned = true;
        loop.quit();
    });
    loop.exec();

    if (is_given_up)
        throw Failure(FailureNumber::automation, silent);
    if (is_abandoned || (closing && !desk_runs()))
        return;
    if (!reply.isFinished() || is_lost(reply.error()))
        throw Failure(FailureNumber::automation, "The contact desk ended before its dialog was closed.");
    if (reply.isError())
        throw failure_of(reply.error());
}

void Link::tell_loss() const {
    if (notices_)
        notices_->tell_loss(bus_.isConnected()
                                ? "The contact desk has ended without notice."
                                : "The contact desk can't be reached any more: the session bus is gone.");
}

std::shared_ptr<Link> make_link(const QDBusConnection& bus, Notices* notices) {
    return std::make_shared<Link>(bus, notices);
}

void abandon_command(Link& link) { link.abandon(); }

} // namespace bus
