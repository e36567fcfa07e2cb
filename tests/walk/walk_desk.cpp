#include "desk/service/service.h"
#include "desk/windows/desk_window.h"
#include "desk/windows/open_toolbar_commands.h"
#include "support/fake_mail_program.h"
#include "walk/random_hand.h"
#include "walk/ticking.h"
#include "walk/watchdog.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int tick_milliseconds = 2;
constexpr int mail_takes_it = 60; // of 100 times

windows::Taken import_nothing(store::Store&, const windows::Taking&, const windows::Progress&) {
    return {.report = "Nothing to import."};
}

} // namespace

// The contact desk with all its windows, in which a random hand works on every dialog that opens:
// `walk_desk BUS DATABASE SEED`. Its mails go nowhere, by a mail program that takes them or doesn't.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 4)
        return 2;
    support::FakeMailProgram mail;
    const auto bus = QDBusConnection::connectToBus(QString::fromLocal8Bit(argv[1]), "walk_desk");
    windows::OpenDatabase database(values::english_us());
    windows::DeskWindow window(database, {.take = import_nothing});
    windows::OpenToolbarCommands toolbar_commands(database);
    service::Service service(window.desk(), toolbar_commands, values::english_us());
    window.show();
    window.open(argv[2]);
    if (service.register_on(bus) != service::Service::Registration::done)
        return 1;
    std::puts("ready");
    std::fflush(stdout);

    walk::Watchdog watchdog("The desk");
    walk::RandomHand hand(static_cast<unsigned>(std::atol(argv[3])));
    const char* log = std::getenv("ORVANTA_WALK_LOG");
    if (log)
        hand.tell = [file = std::fopen((std::string(log) + ".desk").c_str(), "w")](const std::string& act) {
            std::fprintf(file, "%s\n", act.c_str());
            std::fflush(file);
        };
    QPointer<QWidget> last_dialog;
    walk::Ticking ticking(tick_milliseconds, [&] {
        watchdog.beat();
        QWidget* dialog = walk::open_dialog();
        if (dialog && dialog != last_dialog)
            mail.install(hand.in_so_many_of_100(mail_takes_it) ? 0 : 1);
        last_dialog = dialog;
        if (dialog)
            hand.act_in_dialog(*dialog);
    });
    return QApplication::exec();
}
