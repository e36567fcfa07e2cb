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

QString tr(const char* text) { return QCoreApplication::translate("windows::ExchangeCommands", text); }

} // namespace

std::optional<std::string> ExchangeCommands::ask_user() {
    const std::vector<store::User>& users = database_.directory().users();
    if (users.size() < 2)
        return users.empty() ? std::string() : users.front().name;
    const QString here = last_user_.empty() ? qEnvironmentVariable("USER") : shown(last_user_);
    QStringList names;
    for (const store::User& user : users)
        names << shown(user.name);
    const auto is_here = [&](const QString& name) { return name.compare(here, Qt::CaseInsensitive) == 0; };
    const auto found = std::ranges::find_if(names, is_here);
    const auto place = found == names.end() ? 0 : found - names.begin();
    bool is_chosen = false;
    const QString name = QInputDialog::getItem(&window_, tr("Import"), tr("Schedule the activities for:"), names,
                                               static_cast<int>(place), false, &is_chosen);
    if (!is_chosen)
        return std::nullopt;
    return last_user_ = stored(name);
}

void ExchangeCommands::import_file() {
    const QString file = QFileDialog::getOpenFileName(
        &window_, tr("Import"), QString(), tr("Calendars and address cards (*.ics *.vcf);;All files (*)"));
    if (file.isEmpty())
        return;
    const bool has_activities = !file.endsWith(".vcf", Qt::CaseInsensitive);
    const auto user = has_activities ? ask_user() : std::string();
    if (!user)
        return;
    attempt(&window_, [&] {
        const std::string result =
            exchange_.take(database_.store(), QFileInfo(file).absoluteFilePath().toStdString(), *user);
        database_.refresh();
        tell(&window_, tr("Import"), shown(result));
    });
}

} // namespace windows
