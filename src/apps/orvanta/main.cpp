#include "adapters/qt/appearance.h"
#include "adapters/qt/end_requests.h"
#include "adapters/qt/qt_clock.h"
#include "adapters/qt/qt_files.h"
#include "adapters/qt/qt_folders.h"
#include "adapters/qt/qt_locale.h"
#include "adapters/qt/qt_message_box.h"
#include "adapters/qt/qt_shell.h"
#include "adapters/qt/qt_user_store.h"
#include "apps/orvanta/desk_notices.h"
#include "apps/orvanta/desk_server.h"
#include "apps/orvanta/process.h"
#include "core/host/deployment.h"
#include "ui/main_window/frm_main.h"

#include <QApplication>
#include <QDBusConnection>
#include <QIcon>

#include <memory>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const host::ApplicationInfo& info = host::application_info();
    QApplication::setApplicationName(QString::fromStdString(info.title));
    QGuiApplication::setDesktopFileName("orvanta");
    QGuiApplication::setWindowIcon(QIcon(":/orvanta/orvanta.svg"));
    QApplication::setQuitOnLastWindowClosed(false); // the program says itself when it ends
    qt::dress(application);

    const values::Locale locale = qt::system_locale();
    const auto box = qt::make_message_box();
    const auto clock = qt::make_clock();
    const auto tmrRefresh = qt::make_timer();
    const auto tmr2 = qt::make_timer();
    const auto shell = qt::make_shell();
    const auto files = qt::make_files();
    const auto user_store = qt::make_user_store(*files);
    const auto folders = qt::make_folders();
    apps::Process process;
    apps::DeskNotices notices(*box, info);
    const auto link = bus::make_link(QDBusConnection::sessionBus(), &notices);
    apps::DeskServer server(link, locale);
    const auto ActEvent1 = bus::make_event_control(link);

    ui::frmMain window({.machine = {.application = info,
                                    .locale = locale,
                                    .clock = *clock,
                                    .box = *box,
                                    .shell = *shell,
                                    .files = *files,
                                    .folders = *folders,
                                    .user_store = *user_store},
                        .program = process,
                        .server = server,
                        .ActEvent1 = *ActEvent1,
                        .tmrRefresh = *tmrRefresh,
                        .tmr2 = *tmr2});
    std::unique_ptr<qt::EndRequests> end_requests;
    const auto load = [&] {
        window.load();
        // Not before, as what isn't loaded yet would be stored over the state of the last time.
        end_requests = qt::make_end_requests([&] {
            window.unload_at_once();
            bus::abandon_command(*link);
        });
    };
    QMetaObject::invokeMethod(&window, load, Qt::QueuedConnection);
    return QApplication::exec();
}
