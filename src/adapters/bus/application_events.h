#pragma once

#include <QObject>

#include "adapters/bus/application_link.h"

#include <deque>

namespace bus {

// The event control over the bus. Events are kept in the order of their coming and delivered one for each turn of
// the event loop, none while a command waits.
class Events : public QObject, public act::EventControl {
    Q_OBJECT

public:
    explicit Events(std::shared_ptr<Link> link);

    int Open_Databases(int argument) override;
    bool Communication_Failed() override { return !reached_; }
    void Disconnect() override;

private:
    enum class Event { database_closed, user_wants_to_close, desk_lost };

    void tell_end();
    void miss_desk();
    void keep(Event event);
    void deliver_later();
    void deliver_next();

    std::shared_ptr<Link> link_;
    std::deque<Event> kept_;
    bool end_told_ = false; // by the desk that is running or just gone
    bool reached_ = false;  // by the last Open_Databases
};

} // namespace bus
