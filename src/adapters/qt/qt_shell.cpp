#include "adapters/qt/qt_shell.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

namespace qt {

namespace {

#ifdef Q_OS_WIN
constexpr auto program_ending = ".exe";
#else
constexpr auto program_ending = "";
#endif

class QtShell : public host::Shell {
public:
    bool open(const std::string& file_or_page) override {
        const QString what = QString::fromStdString(file_or_page);
        if (what.startsWith("http://", Qt::CaseInsensitive) || what.startsWith("https://", Qt::CaseInsensitive))
            return QDesktopServices::openUrl(QUrl(what));
        const QFileInfo file(what);
        return file.exists() && QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
    }

    bool start_companion(const std::string& name) override {
        const QString plain = QString::fromStdString(name);
        if (QFileInfo(plain).fileName() != plain)
            return false; // a name, not a path
        const QString folder = QCoreApplication::applicationDirPath();
        const QFileInfo program(folder + "/" + plain + program_ending);
        return program.isFile() && QProcess::startDetached(program.absoluteFilePath(), {}, folder);
    }

    void beep() override { QApplication::beep(); }
};

} // namespace

std::unique_ptr<host::Shell> make_shell() { return std::make_unique<QtShell>(); }

} // namespace qt
