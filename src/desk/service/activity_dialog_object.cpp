#include "desk/service/activity_dialog_object.h"

#include "desk/model/refusal.h"
#include "desk/service/answer.h"

namespace service {

using contract::from_wire;

QString ActivityDialogObject::OpenDialog() const {
    const model::ActivityDialog* open = desk_.activity_dialog();
    if (!open)
        return {};
    return open->is_new() ? contract::new_activity : contract::stored_activity;
}

model::ActivityDialog& ActivityDialogObject::dialog() const {
    model::ActivityDialog* open = desk_.activity_dialog();
    if (!open)
        model::refuse("No activity is being worked on for another program.");
    return *open;
}

void ActivityDialogObject::Fill(const QString& type, const QString& date, const QString& time,
                                const QString& duration, const QString& regarding, const QString& priority,
                                const QString& scheduled_for) {
    answer(*this, [&] {
        if (!dialog().is_new())
            model::refuse("The activity is stored already; its fields aren't filled.");
        dialog().fill({.type = from_wire(type),
                       .date = from_wire(date),
                       .time = from_wire(time),
                       .duration = from_wire(duration),
                       .regarding = from_wire(regarding),
                       .priority = from_wire(priority),
                       .scheduled_for = from_wire(scheduled_for)});
    });
}

void ActivityDialogObject::ShowTab(const QString& tab) {
    answer(*this, [&] { dialog().show_tab(from_wire(tab)); });
}

} // namespace service
