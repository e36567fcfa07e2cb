#include "desk/service/application_object.h"

#include "desk/model/refusal.h"
#include "desk/service/answer.h"

#include <QPointer>

#include <filesystem>
#include <utility>

namespace service {
namespace {

act::CommandNumber command_of(int number) {
    switch (const auto command = static_cast<act::CommandNumber>(number)) {
    case act::CommandNumber::close_application:
    case act::CommandNumber::show_contact_view:
    case act::CommandNumber::schedule_activity:
    case act::CommandNumber::clear_activity:
    case act::CommandNumber::edit_activity:
    case act::CommandNumber::send_activity:
    case act::CommandNumber::activity_details:
        return command;
    }
    model::refuse("The contact desk has no command " + std::to_string(number) + ".");
}

bool same_file(const std::string& left, const std::string& right) {
    std::error_code ignored; // a path that leads nowhere is no open database
    return left == right || std::filesystem::equivalent(left, right, ignored);
}

} // namespace

int ApplicationObject::OpenDatabases() const { return desk_.database_path().empty() ? 0 : 1; }

QString ApplicationObject::GetOpenDBName() const { return contract::on_wire(desk_.database_path()); }

void ApplicationObject::OpenFile(const QString& path) {
    answer(*this, [&] {
        const auto open = desk_.database_path();
        if (open.empty())
            model::refuse("No database is open in the contact desk.");
        if (const auto wanted = contract::from_wire(path); !wanted.empty() && !same_file(wanted, open))
            model::refuse("The contact desk has another database open: " + open);
    });
}

void ApplicationObject::Command(int number) {
    answer(*this, [&] { begin(command_of(number)); });
}

void ApplicationObject::begin(act::CommandNumber number) {
    if (waiting_)
        model::refuse("The contact desk is still busy with another command.");
    if (number != act::CommandNumber::close_application && desk_.database_path().empty())
        model::refuse("No database is open in the contact desk.");
    setDelayedReply(true);
    waiting_ = Caller{connection(), message()};
    try {
        desk_.run_command(number, [self = QPointer(this)] {
            if (self)
                self->finish();
        });
    } catch (...) {
        waiting_.reset();
        throw;
    }
}

void ApplicationObject::finish() {
    if (const auto caller = std::exchange(waiting_, std::nullopt))
        caller->bus.send(caller->call.createReply());
}

} // namespace service
