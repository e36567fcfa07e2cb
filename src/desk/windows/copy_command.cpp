#include "desk/windows/copy_command.h"

#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QProgressDialog>

namespace windows {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("windows::save_copy", text); }

QString ask_file(const OpenDatabase& database, QWidget& window) {
    const QFileInfo original(shown(database.path()));
    QFileDialog dialog(&window, tr("Save a Copy"), original.absolutePath(), tr("Contact databases (*.desk)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("desk");
    dialog.selectFile(tr("Copy of %1").arg(original.fileName()));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

void save_copy(OpenDatabase& database, QWidget& window) {
    const QString file = ask_file(database, window);
    if (file.isEmpty())
        return;
    attempt(&window, [&] {
        QProgressDialog progress(tr("Copying the database..."), tr("Stop"), 0, 0, &window);
        progress.setWindowTitle(tr("Save a Copy"));
        progress.setWindowModality(Qt::WindowModal);
        database.kept_store()->save_copy(stored(file), [&](int done, int all) {
            progress.setMaximum(all);
            progress.setValue(done); // lets the window's events in
            return !progress.wasCanceled();
        });
    });
}

} // namespace windows
