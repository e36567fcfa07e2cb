#pragma once

#include "core/act/application.h"
#include "core/act/database.h"

#include <memory>

namespace act {

// Makes the objects that can be created by name. Fails with 429 when the server isn't to be had.
class Server {
public:
    virtual ~Server() = default;
    virtual std::unique_ptr<Application> create_application() = 0;  // "ACTOLE.APPOBJECT"
    virtual std::unique_ptr<Database> create_database() = 0;        // "ACTOLE.DATABASE"
    virtual std::unique_ptr<AuxCommands> create_aux_commands() = 0; // "ACTOLE.AUXCMDS"
};

} // namespace act
