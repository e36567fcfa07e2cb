#pragma once

#include "desk/service/service.h"
#include "support/fake_desk.h"
#include "support/private_bus.h"

#include <QThread>

#include <memory>

namespace support {

// A desk that answers over a bus from a thread of its own, so that the test can wait for it as another process
// would. The desk's members are looked at and changed on that thread alone: by `run`.
class DeskOnBus {
public:
    explicit DeskOnBus(PrivateBus& bus, std::string database = "/data/Sample.db") {
        desk.path = std::move(database);
        place_.moveToThread(&thread_);
        thread_.start();
        run([&] {
            service_ = std::make_unique<service::Service>(desk, toolbar, values::english_us());
            EXPECT_EQ(service_->register_on(bus.connection()), service::Service::Registration::done);
        });
    }
    ~DeskOnBus() {
        run([&] { service_.reset(); });
        thread_.quit();
        thread_.wait();
    }

    template <typename Body>
    void run(Body body) {
        QMetaObject::invokeMethod(&place_, body, Qt::BlockingQueuedConnection);
    }

    FakeDesk desk;
    FakeToolbarCommands toolbar;

private:
    QThread thread_;
    QObject place_;
    std::unique_ptr<service::Service> service_;
};

} // namespace support
