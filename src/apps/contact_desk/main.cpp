#include "adapters/qt/appearance.h"
#include "adapters/qt/qt_locale.h"
#include "adapters/qt/zone_names.h"
#include "apps/contact_desk/options.h"
#include "core/values/failure.h"
#include "desk/import/import_file.h"
#include "desk/service/service.h"
#include "desk/store/store.h"
#include "desk/windows/desk_window.h"
#include "desk/windows/open_toolbar_commands.h"
#include "desk/windows/sample_file.h"

#include <QApplication>
#include <QMessageBox>

#include <iostream>

namespace {

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
    const importing::Options options{.user = task.user, .other_zone_names = qt::zone_name_from_windows};
    std::cout << importing::import_file(*store, task.file, options).text();
    return 0;
}

// The report as a message box has room for it.
std::string import_for_window(store::Store& store, const std::string& file, const windows::Progress& progress) {
    constexpr std::size_t most_remarks = 12;
    const importing::Options options{.other_zone_names = qt::zone_name_from_windows, .progress = progress};
    return importing::import_file(store, file, options).text(most_remarks);
}

int run(const apps::ShowWindow& task, int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("contact-desk");
    QApplication::setApplicationVersion(CONTACT_DESK_VERSION);
    qt::dress(application);
    const values::Locale locale = qt::system_locale();
    windows::OpenDatabase database(locale);
    windows::DeskWindow window(database, import_for_window);
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
