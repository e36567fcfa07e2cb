#pragma once

#include "core/act/application.h"

#include <QDBusConnection>

#include <functional>
#include <memory>
#include <string>

// The running contact desk, reached over D-Bus. Each call waits for at most two seconds and takes no events
// meanwhile; every error on the way becomes a values::Failure with 440 and a sentence for the user.
//
// Command alone waits as long as the desk's dialog is open. The program's windows repaint meanwhile, but what the
// user does to them is thrown away. The desk's events that come during the wait are kept and delivered from the
// event loop after Command has returned. The wait ends with 440 at once when the desk dies, and when the user
// gives a desk up that has stopped answering. Closing the desk by Command returns when it has gone.
namespace bus {

// What the user has to be told of the desk, by the program that has the windows.
class Notices {
public:
    virtual ~Notices() = default;
    // A command waits, and the desk has answered nothing for five seconds. Returns at once; `give_up` ends the
    // wait.
    virtual void show_silence(std::function<void()> give_up) = 0;
    virtual void hide_silence() = 0; // it answers again, or nothing waits any more
    // The desk or the bus has gone without having told it. Returns when the user has read it.
    virtual void tell_loss(const std::string& sentence) = 0;
};

// What the objects below share: the way to the desk, and whether a command waits. The notices, if any, outlive it.
class Link;
std::shared_ptr<Link> make_link(const QDBusConnection& bus, Notices* notices = nullptr);
// A command that waits returns as if its dialog had been closed, which stays open: for a program that has to end.
void abandon_command(Link& link);

// Both fail with 429 when the desk isn't running.
std::unique_ptr<act::Application> make_application(std::shared_ptr<Link> link);
std::unique_ptr<act::AuxCommands> make_aux_commands(std::shared_ptr<Link> link);

// Listens from its making on, whether the desk is running or not. A desk that dies, and a bus that does, count as
// OnActUserWantsToClose, which the user is told before; a desk that tells its end and then goes gives that event
// once.
std::unique_ptr<act::EventControl> make_event_control(std::shared_ptr<Link> link);

} // namespace bus
