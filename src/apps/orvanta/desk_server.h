#pragma once

#include "act/objects.h"
#include "adapters/desk/application_bridge.h"
#include "adapters/desk/desk_data.h"

#include <memory>
#include <utility>

namespace apps {

// The contact desk's objects: the running one over the bus, the data in the file that it has open.
class DeskServer : public act::Server {
public:
    DeskServer(std::shared_ptr<desk::Link> link, const values::Locale& locale)
        : link_(std::move(link)), locale_(locale) {}

    std::unique_ptr<act::Application> create_application() override { return desk::make_application(link_); }
    std::unique_ptr<act::Database> create_database() override {
        return desk::make_database([link = link_] { return desk::make_application(link)->GetOpenDBName(); },
                                   locale_);
    }
    std::unique_ptr<act::AuxCommands> create_aux_commands() override { return desk::make_aux_commands(link_); }

private:
    std::shared_ptr<desk::Link> link_;
    const values::Locale& locale_;
};

} // namespace apps
