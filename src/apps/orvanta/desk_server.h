#pragma once

#include "adapters/bus/application_bridge.h"
#include "adapters/records/desk_database.h"
#include "core/act/objects.h"

#include <memory>
#include <utility>

namespace apps {

// The contact desk's objects: the running one over the bus, the data in the file that it has open.
class DeskServer : public act::Server {
public:
    DeskServer(std::shared_ptr<bus::Link> link, const values::Locale& locale)
        : link_(std::move(link)), locale_(locale) {}

    std::unique_ptr<act::Application> create_application() override { return bus::make_application(link_); }
    std::unique_ptr<act::Database> create_database() override {
        return records::make_database([link = link_] { return bus::make_application(link)->GetOpenDBName(); },
                                      locale_);
    }
    std::unique_ptr<act::AuxCommands> create_aux_commands() override { return bus::make_aux_commands(link_); }

private:
    std::shared_ptr<bus::Link> link_;
    const values::Locale& locale_;
};

} // namespace apps
