#include "desk/service/service.h"

#include "contract/names.h"
#include "desk/service/activity_dialog_adaptor.h"
#include "desk/service/application_adaptor.h"
#include "desk/service/aux_commands_adaptor.h"
#include "desk/service/contact_view_adaptor.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>

#include <array>
#include <optional>
#include <utility>

namespace service {
namespace {

constexpr int farewell_milliseconds = 1000;

// Returns when the bus has everything that was sent before, so that a signal leaves a process that ends next.
void wait_until_sent(const QDBusConnection& bus) {
    bus.call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                            "org.freedesktop.DBus.Peer", "Ping"),
             QDBus::Block, farewell_milliseconds);
}

} // namespace

class Service::Objects {
public:
    Objects(model::Desk& desk, store::ToolbarCommands& toolbar_commands, const values::Locale& locale)
        : desk_(desk), application_(desk), contact_view_(desk, locale), aux_commands_(toolbar_commands),
          activity_dialog_(desk) {
        desk_.on_activity_dialog = [this] { emit activity_dialog_.Opened(activity_dialog_.OpenDialog()); };
        desk_.on_database_closed = [this] {
            emit application_.DatabaseClosed();
            settle();
        };
        desk_.on_user_wants_to_close = [this] {
            emit application_.UserWantsToClose();
            settle();
        };
    }

    ~Objects() {
        desk_.on_activity_dialog = nullptr;
        desk_.on_database_closed = nullptr;
        desk_.on_user_wants_to_close = nullptr;
        leave();
    }

    Registration enter(const QDBusConnection& bus) {
        if (!bus.isConnected())
            return Registration::no_bus;
        bus_ = bus;
        for (const auto& [path, object] : exported_)
            bus_->registerObject(path, object, QDBusConnection::ExportAdaptors);
        const auto reply = bus_->interface()->registerService(contract::bus_name);
        if (reply == QDBusConnectionInterface::ServiceRegistered)
            return Registration::done;
        leave();
        return reply.isValid() ? Registration::name_taken : Registration::no_bus;
    }

private:
    void settle() {
        if (bus_)
            wait_until_sent(*bus_);
    }

    void leave() {
        if (!bus_)
            return;
        bus_->unregisterService(contract::bus_name);
        for (const auto& [path, object] : exported_)
            bus_->unregisterObject(path);
        bus_.reset();
    }

    model::Desk& desk_;
    ApplicationObject application_;
    ContactViewObject contact_view_;
    AuxCommandsObject aux_commands_;
    ActivityDialogObject activity_dialog_;
    ApplicationAdaptor application_adaptor_{&application_};
    ContactViewAdaptor contact_view_adaptor_{&contact_view_};
    AuxCommandsAdaptor aux_commands_adaptor_{&aux_commands_};
    ActivityDialogAdaptor activity_dialog_adaptor_{&activity_dialog_};
    std::array<std::pair<QString, QObject*>, 4> exported_{{{contract::application_path, &application_},
                                                           {contract::contact_view_path, &contact_view_},
                                                           {contract::aux_commands_path, &aux_commands_},
                                                           {contract::activity_dialog_path, &activity_dialog_}}};
    std::optional<QDBusConnection> bus_;
};

Service::Service(model::Desk& desk, store::ToolbarCommands& toolbar_commands, const values::Locale& locale)
    : objects_(std::make_unique<Objects>(desk, toolbar_commands, locale)) {}

Service::~Service() = default;

Service::Registration Service::register_on(const QDBusConnection& bus) { return objects_->enter(bus); }

} // namespace service
