#include "desk/service/service.h"
#include "support/fake_desk.h"

#include <QCoreApplication>

#include <cstdio>
#include <unistd.h>

// A desk in a process of its own, which tests can kill: `desk_process <bus address>`. Its dialogs never close. The
// command that closes it ends the process as fast as it can, right after the event has been sent.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    support::FakeDesk desk;
    support::FakeToolbarCommands toolbar;
    desk.path = "/data/Sample.db";
    desk.on_command = [&](act::CommandNumber number) {
        if (number != act::CommandNumber::close_application)
            return;
        desk.finish_command();
        desk.on_user_wants_to_close();
        ::_exit(0);
    };
    service::Service service(desk, toolbar, values::english_us());
    const auto bus = QDBusConnection::connectToBus(application.arguments().value(1), "desk");
    if (service.register_on(bus) != service::Service::Registration::done)
        return 1;
    std::puts("ready");
    std::fflush(stdout);
    return application.exec();
}
