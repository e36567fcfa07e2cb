#include "adapters/bus/application_events.h"

#include <utility>

namespace bus {

Events::Events(std::shared_ptr<Link> link) : link_(std::move(link)) {
    connect(&link_->application(), &ApplicationProxy::DatabaseClosed, this,
            [this] { keep(Event::database_closed); });
    connect(&link_->application(), &ApplicationProxy::UserWantsToClose, this, &Events::tell_end);
    connect(link_.get(), &Link::desk_gone, this, &Events::miss_desk);
    connect(link_.get(), &Link::wait_ended, this, &Events::deliver_later);
}

int Events::Open_Databases(int) {
    try {
        const int count = answered(link_->application().OpenDatabases());
        reached_ = true;
        return count;
    } catch (const values::Failure&) {
        reached_ = false; // Communication_Failed tells it
        return 0;
    }
}

void Events::Disconnect() {
    disconnect(&link_->application(), nullptr, this, nullptr);
    disconnect(link_.get(), nullptr, this, nullptr);
    kept_.clear();
}

void Events::tell_end() {
    end_told_ = true;
    keep(Event::user_wants_to_close);
}

void Events::miss_desk() {
    if (!std::exchange(end_told_, false)) // a command that waits tells the loss by its failure
        keep(link_->waits() ? Event::user_wants_to_close : Event::desk_lost);
}

void Events::keep(Event event) {
    kept_.push_back(event);
    deliver_later();
}

void Events::deliver_later() { QMetaObject::invokeMethod(this, &Events::deliver_next, Qt::QueuedConnection); }

void Events::deliver_next() {
    if (kept_.empty() || link_->waits())
        return;
    const auto event = kept_.front();
    kept_.pop_front();
    if (!kept_.empty())
        deliver_later();
    if (event == Event::desk_lost)
        link_->tell_loss();
    // A copy, since the program may end this object in it.
    const auto call_back = event == Event::database_closed ? OnDatabaseClose : OnActUserWantsToClose;
    if (call_back)
        call_back();
}

std::unique_ptr<act::EventControl> make_event_control(std::shared_ptr<Link> link) {
    return std::make_unique<Events>(std::move(link));
}

} // namespace bus
