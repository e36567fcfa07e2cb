#include "desk/windows/database_commands.h"

#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"
#include "desk/windows/sample_file.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>

#include <filesystem>

namespace windows {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("windows::DatabaseCommands", text); }

QString databases() { return tr("Contact databases (*.desk);;All files (*)"); }

QString folder_of(const std::string& path) { return shown(std::filesystem::path(path).parent_path().string()); }

std::string absolute(const QString& path) { return QFileInfo(path).absoluteFilePath().toStdString(); }

} // namespace

void DatabaseCommands::open(const std::string& path) {
    if (leave())
        attempt(&window_, [&] { database_.open(path); });
}

void DatabaseCommands::open_another() {
    const QString file =
        QFileDialog::getOpenFileName(&window_, tr("Open Database"), folder_of(database_.path()), databases());
    if (!file.isEmpty())
        open(absolute(file));
}

// A file that is there already isn't overwritten: making the database fails then, which is told.
QString DatabaseCommands::ask_new_file(const QString& title, const QString& suggestion) {
    QFileDialog dialog(&window_, title, folder_of(database_.path()), databases());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setDefaultSuffix("desk");
    dialog.selectFile(suggestion);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void DatabaseCommands::create() {
    const QString file = ask_new_file(tr("New Database"), "contacts.desk");
    if (file.isEmpty() || !leave())
        return;
    const QString user = QInputDialog::getText(&window_, tr("New Database"), tr("Name of the first user:"),
                                               QLineEdit::Normal, qEnvironmentVariable("USER"))
                             .trimmed();
    if (!user.isEmpty())
        attempt(&window_, [&] { make(absolute(file), stored(user)); });
}

// Activities are scheduled for users, so a database begins with one.
void DatabaseCommands::make(const std::string& path, const std::string& user) {
    database_.create(path);
    database_.store().add(store::User{.name = user, .security = "Administrator", .access = "Enabled"});
    database_.refresh();
}

void DatabaseCommands::create_sample() {
    const QString file = ask_new_file(tr("New Sample Database"), "sample.desk");
    if (file.isEmpty() || !leave())
        return;
    attempt(&window_, [&] {
        windows::create_sample(absolute(file), database_.today());
        database_.open(absolute(file));
    });
}

void DatabaseCommands::close() {
    if (leave())
        attempt(&window_, [this] { database_.close(); });
}

void DatabaseCommands::add_user() {
    const QString name = QInputDialog::getText(&window_, tr("Add User"), tr("Name of the user:")).trimmed();
    if (name.isEmpty())
        return;
    attempt(&window_, [&] {
        database_.store().add(store::User{.name = stored(name), .security = "Standard", .access = "Enabled"});
        database_.refresh();
    });
}

bool DatabaseCommands::leave() {
    if (!lookup_.before_leaving || attempt(&window_, lookup_.before_leaving))
        return true;
    return QMessageBox::question(
               &window_, tr("Unsaved Changes"), tr("What was typed couldn't be stored. Go on without it?"),
               QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Cancel) == QMessageBox::Discard;
}

} // namespace windows
