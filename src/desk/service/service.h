#pragma once

#include "core/values/locale.h"
#include "desk/model/desk.h"
#include "desk/store/toolbar_commands.h"

#include <QDBusConnection>

#include <memory>

namespace service {

// Offers a desk to other programs over D-Bus, under its well-known name. It sets the desk's events and belongs to
// the thread of the desk's windows. What it is given outlives it.
class Service {
public:
    Service(model::Desk& desk, store::ToolbarCommands& toolbar_commands, const values::Locale& locale);
    ~Service(); // leaves the bus
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    enum class Registration {
        done,
        name_taken, // another desk is running
        no_bus,     // there is no session bus: the desk works, but no other program finds it
    };
    // Offers the desk on a bus. Programs find it from then on, so it is called when the desk can answer.
    Registration register_on(const QDBusConnection& bus);

private:
    class Objects;
    std::unique_ptr<Objects> objects_;
};

} // namespace service
