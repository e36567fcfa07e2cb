#include "desk/windows/exchange_commands.h"

#include "desk/windows/boxes.h"
#include "desk/windows/conversions.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>

#include <algorithm>

namespace windows {
namespace {

QString tr(const char* text, int count = -1) {
    return QCoreApplication::translate("windows::ExchangeCommands", text, nullptr, count);
}

} // namespace

QString ExchangeCommands::user_here() const {
    const QString here = last_user_.empty() ? qEnvironmentVariable("USER") : shown(last_user_);
    const auto is_here = [&](const store::User& user) {
        return shown(user.name).compare(here, Qt::CaseInsensitive) == 0;
    };
    const auto& users = database_.directory().users();
    const auto found = std::ranges::find_if(users, is_here);
    return found == users.end() ? QString() : shown(found->name);
}

std::optional<std::string> ExchangeCommands::ask_user(const QString& title, const QString& question,
                                                      const QString& all) {
    QStringList names;
    for (const store::User& user : database_.directory().users())
        names << shown(user.name);
    if (!all.isEmpty())
        names << all;
    if (names.size() < 2)
        return stored(names.value(0));
    const QString first = all.isEmpty() ? user_here() : all;
    const auto place = std::max(0, static_cast<int>(names.indexOf(first)));
    bool is_chosen = false;
    const QString name = QInputDialog::getItem(&window_, title, question, names, place, false, &is_chosen);
    if (!is_chosen)
        return std::nullopt;
    if (!all.isEmpty() && name == all)
        return std::string();
    return last_user_ = stored(name);
}

void ExchangeCommands::import_file() {
    const QString file = QFileDialog::getOpenFileName(
        &window_, tr("Import"), QString(), tr("Calendars and address cards (*.ics *.vcf);;All files (*)"));
    if (file.isEmpty())
        return;
    Taking taking{.file = QFileInfo(file).absoluteFilePath().toStdString()};
    if (!file.endsWith(".vcf", Qt::CaseInsensitive)) {
        const bool names_users = exchange_.names_users && exchange_.names_users(taking.file);
        const auto user = ask_user(tr("Import"), tr("Schedule the activities for:"),
                                   names_users ? tr("(everybody whom the file names)") : QString());
        if (!user)
            return;
        taking.user = *user;
    }
    attempt(&window_, [&] { take(*database_.kept_store(), taking); });
}

void ExchangeCommands::take(store::Store& store, const Taking& taking) {
    store.together([] {}); // fails where the file at its path is another one
    Taken taken;
    const bool is_done = run_long_task(&window_, tr("Importing"), [&](const Progress& progress) {
        const auto own = store::Store::open(store.path()); // a store is used by one thread
        taken = exchange_.take(*own, taking, progress);
    });
    if (!is_done)
        return;
    database_.refresh();
    const bool again =
        taken.left_deleted > 0 && confirm(&window_, tr("Import"),
                                          shown(taken.report) + tr("\nTake in again what was deleted here (%n)?",
                                                                   static_cast<int>(taken.left_deleted)));
    if (again)
        take(store, {.file = taking.file, .user = taking.user, .with_deleted = true});
    else if (taken.left_deleted == 0)
        tell(&window_, tr("Import"), shown(taken.report));
}

std::string ExchangeCommands::ask_file_to_write() {
    QFileDialog dialog(&window_, tr("Export"), QString(),
                       tr("Activities, as a calendar (*.ics);;Contacts, as address cards (*.vcf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("ics");
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        dialog.setDefaultSuffix(filter.contains("*.vcf") ? "vcf" : "ics");
    });
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return QFileInfo(dialog.selectedFiles().value(0)).absoluteFilePath().toStdString();
}

void ExchangeCommands::export_file() {
    const std::string file = ask_file_to_write();
    if (file.empty())
        return;
    std::optional<std::string> user = std::string();
    if (!shown(file).endsWith(".vcf", Qt::CaseInsensitive) && database_.directory().users().size() > 1)
        user = ask_user(tr("Export"), tr("Write the activities of:"), tr("(everybody)"));
    if (!user)
        return;
    attempt(&window_, [&] {
        const std::string result = exchange_.write(database_.store(), file, *user);
        tell(&window_, tr("Export"), shown(result));
    });
}

} // namespace windows
