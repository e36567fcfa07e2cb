#pragma once

#include "adapters/records/desk_database.h"
#include "support/fake_act_server.h"

#include <memory>
#include <string>

namespace support {

// The data of a real database beside a running application in memory.
class HalfRealServer : public act::Server {
public:
    explicit HalfRealServer(std::string database) : database_(std::move(database)) {}
    std::unique_ptr<act::Application> create_application() override { return fakes_.create_application(); }
    std::unique_ptr<act::Database> create_database() override {
        return records::make_database([this] { return database_; });
    }
    std::unique_ptr<act::AuxCommands> create_aux_commands() override { return fakes_.create_aux_commands(); }

    const FakeApplicationState& application() const { return state_; }

private:
    std::string database_;
    FakeActData data_;
    FakeApplicationState state_;
    FakeServer fakes_{data_, state_};
};

} // namespace support
