#pragma once

#include "contract/names.h"
#include "support/desk_on_bus.h"

#include <gtest/gtest.h>

// A desk on a bus of its own and a proxy that calls it as another program does.
template <typename Proxy>
class CalledDesk : public ::testing::Test {
protected:
    explicit CalledDesk(const QString& path) : proxy(contract::bus_name, path, bus.connection()) {}

    // The sentence with which the desk refused, "" when it did what it was asked.
    template <typename Reply>
    std::string refusal(Reply reply) {
        reply.waitForFinished();
        if (!reply.isError())
            return "";
        EXPECT_EQ(reply.error().name(), contract::failure_error) << reply.error().message().toStdString();
        return reply.error().message().toStdString();
    }

    support::PrivateBus bus;
    support::DeskOnBus on_bus{bus};
    support::FakeDesk& desk = on_bus.desk;
    Proxy proxy;
};
