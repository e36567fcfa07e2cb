#include "adapters/qt/qt_files.h"
#include "adapters/qt/qt_user_store.h"
#include "companions/activitywin/dialog_filler.h"

#include <QCoreApplication>

#include <exception>
#include <iostream>

// Started by the calendar; has no window and takes no arguments. The exit status is 0 when a dialog was filled,
// else 1 with the reason on the error output.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("ActivityWin");
    const auto tell = [](const std::string& problem) { std::cerr << "ActivityWin: " << problem << '\n'; };
    try {
        const auto files = qt::make_files();
        const auto user_store = qt::make_user_store(*files);
        settings::PerUserStore values(*user_store);
        companions::DialogFiller filler(QDBusConnection::sessionBus(), values);
        QObject::connect(
            &filler, &companions::DialogFiller::done, &application,
            [&](const QString& problem) {
                if (!problem.isEmpty())
                    tell(problem.toStdString());
                QCoreApplication::exit(problem.isEmpty() ? 0 : 1);
            },
            Qt::QueuedConnection);
        filler.start();
        return QCoreApplication::exec();
    } catch (const std::exception& problem) {
        tell(problem.what());
        return 1;
    }
}
