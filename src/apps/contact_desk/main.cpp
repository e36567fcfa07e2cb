#include "adapters/qt/appearance.h"
#include "adapters/qt/end_requests.h"
#include "adapters/qt/qt_locale.h"
#include "adapters/qt/zone_names.h"
#include "apps/contact_desk/options.h"
#include "core/values/failure.h"
#include "desk/export/export_file.h"
#include "desk/import/import_file.h"
#include "desk/service/service.h"
#include "desk/store/store.h"
#include "desk/windows/desk_window.h"
#include "desk/windows/open_toolbar_commands.h"
#include "desk/windows/sample_file.h"

#include <QApplication>
#include <QMessageBox>

#include <ctime>
#include <functional>
#include <iostream>
#include <memory>

namespace {

importing::Report take(store::Store& store, const windows::Taking& taking,
                       const windows::Progress& progress = {}) {
    importing::Options options{
        .user = taking.user, .other_zone_names = qt::zone_name_from_windows, .progress = progress};
    if (taking.with_deleted)
        options.deleted = importing::Deleted::come_back;
    return importing::import_file(store, taking.file, options);
}

exporting::Report write(store::Store& store, const std::string& file, const std::string& user) {
    return exporting::export_file(store, file, {.user = user, .stamp = std::time(nullptr)});
}

int run(const apps::ShowHelp&, int, char**) {
    std::cout << apps::usage();
    return 0;
}

int run(const apps::ShowVersion&, int, char**) {
    std::cout << "contact-desk " << CONTACT_DESK_VERSION << '\n';
    return 0;
}

int run(const apps::NewSample& task, int, char**) {
    windows::create_sample(task.database, store::wall_clock().date());
    std::cout << "Made the sample database " << task.database << '\n';
    return 0;
}

int run(const apps::ImportFile& task, int, char**) {
    const auto store = store::Store::open(task.database);
    const windows::Taking taking{.file = task.file, .user = task.user, .with_deleted = task.with_deleted};
    std::cout << take(*store, taking).text();
    return 0;
}

int run(const apps::ExportFile& task, int, char**) {
    const auto store = store::Store::open(task.database);
    std::cout << write(*store, task.file, task.user).text();
    return 0;
}

constexpr std::size_t most_remarks_in_a_box = 12;

windows::Exchange exchange() {
    return {.take = [](store::Store& store, const windows::Taking& taking,
                       const windows::Progress& progress) -> windows::Taken {
                const auto report = take(store, taking, progress);
                return {.report = report.text(most_remarks_in_a_box), .left_deleted = report.left_deleted};
            },
            .names_users = importing::names_users,
            .write = [](store::Store& store, const std::string& file,
                        const std::string& user) { return write(store, file, user).text(); }};
}

int run(const apps::ShowWindow& task, int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("contact-desk");
    QApplication::setApplicationVersion(CONTACT_DESK_VERSION);
    qt::dress(application);
    const values::Locale locale = qt::system_locale();
    windows::OpenDatabase database(locale);
    windows::DeskWindow window(database, exchange());
    windows::OpenToolbarCommands toolbar_commands(database);
    service::Service service(window.desk(), toolbar_commands, locale);
    window.show();
    if (!task.database.empty())
        window.open(task.database);
    switch (service.register_on(QDBusConnection::sessionBus())) {
    case service::Service::Registration::done:
        break;
    case service::Service::Registration::name_taken:
        QMessageBox::warning(&window, QObject::tr("Contact Desk"),
                             QObject::tr("The contact desk is running already."));
        return 1;
    case service::Service::Registration::no_bus:
        std::cerr << "contact-desk: there is no session bus, so other programs can't reach the contact desk.\n";
        break;
    }
    std::unique_ptr<qt::EndRequests> end_requests;
    const std::function<void()> hear_requests = [&] {
        end_requests = qt::make_end_requests(
            [&] { window.end([&] { QMetaObject::invokeMethod(&window, hear_requests, Qt::QueuedConnection); }); });
    };
    hear_requests();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv) {
    try {
        const apps::Task task = apps::task_of({argv + 1, argv + argc});
        return std::visit([&](const auto& chosen) { return run(chosen, argc, argv); }, task);
    } catch (const apps::UsageError& error) {
        std::cerr << "contact-desk: " << error.what() << "\nTry contact-desk --help.\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << "contact-desk: " << error.what() << '\n';
        return 1;
    }
}
