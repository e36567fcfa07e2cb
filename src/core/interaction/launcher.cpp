#include "core/interaction/launcher.h"

#include "core/settings/catalogue.h"
#include "core/values/failure.h"
#include "core/values/text_forms.h"
#include "core/values/value.h"

namespace interaction {

namespace field = act::activity_field;
namespace keys = settings::keys;
using values::ignoring_failure;

namespace {

// The activities of one type, whatever their priority. A number that is no other type's counts as a to-do.
int mask_of_type(int number) {
    const auto is = [&](act::ActivityType type) { return number == static_cast<int>(type); };
    const act::ActivityType type = is(act::ActivityType::call)      ? act::ActivityType::call
                                   : is(act::ActivityType::meeting) ? act::ActivityType::meeting
                                                                    : act::ActivityType::to_do;
    return act::filter_mask::of(type) | act::filter_mask::every_priority;
}

// Puts back what the work changed, also when it fails; its failure is then the one to tell.
template <typename Work, typename PutBack>
void and_put_back(Work&& work, PutBack&& put_back) {
    try {
        work();
    } catch (...) {
        ignoring_failure(put_back);
        throw;
    }
    put_back();
}

} // namespace

void Launcher::Setup_ActivityWin(const grid::clsMsgSchedCell& cell, const std::string& type) {
    here_.guarded("in frmMain: Sub Setup_ActivityWin - Line # ", [&](host::Step& step) {
        settings::PerUserStore& store = settings_.user_store;
        step = 10;
        write(store, keys::activity_type, type);
        step = 20;
        write(store, keys::activity_date, values::default_text(cell.DateDay(), here_.locale));
        step = 30;
        write(store, keys::activity_time, values::default_text(cell.DateTime(), here_.locale));
        step = 40;
        write(store, keys::activity_duration, cell.Duration());
        step = 50;
        write(store, keys::activity_regarding, read(settings_.ini, keys::acty_regarding));
        step = 60;
        write(store, keys::activity_priority, read(settings_.ini, keys::acty_priority));
        step = 70;
        if (layout_.OneRowPerUser())
            write(store, keys::activity_for, std::string(cell.User()));
        else
            ignoring_failure([&] { remove(store, keys::activity_for); }); // there may be none
        step = 80;
        start_companion();
    });
}

// Without the companion the dialog opens all the same, with ACT!'s own values.
void Launcher::start_companion() { here_.shell.start_companion("ActivityWin"); }

void Launcher::Setup_ActivityWin(const grid::clsMsgSchedCell& cell) {
    Setup_ActivityWin(cell, read(settings_.ini, keys::acty_type));
}

void Launcher::announce_recurring_edit() { write(settings_.user_store, keys::activity_recurring_edit, "1"); }

void Launcher::withdraw_recurring_edit() {
    ignoring_failure(
        [&] { remove(settings_.user_store, keys::activity_recurring_edit); }); // taken by the companion
}

void Launcher::Select_and_Launch_Command(const std::string& id, act::CommandNumber command, const Launch& launch) {
    here_.guarded("in frmMain: Sub Select_and_Launch_Command - Line # ", [&](host::Step& step) {
        step = 10;
        if (activity().Goto(id)) { // what is gone stands in no list
            step = 20;
            const int mask = mask_of_type(values::int16_of(activity().Data(field::type))) |
                             (launch.showCleared ? act::filter_mask::cleared : 0);
            step = 30;
            show_contact(text(field::contact));
            step = 40;
            run_in_list(command, mask, launch);
        }
        step = 100;
        here_.window.unlock_updates();
        step = 110;
        here_.window.bring_to_front();
    });
}

void Launcher::run_in_list(act::CommandNumber command, int mask, const Launch& launch) {
    act::ContactView& view = *act_.session.ActContactView;
    const std::string tab = view.GetActiveTab();
    const auto in_own_filter = [&] {
        view.SetActiveTab("Activities");
        act::ActivityList& list = view.Activities();
        const act::ListFilter users_own = list.GetFilter();
        const auto run = [&] {
            list.SetFilter(
                {mask, launch.allDates ? act::filter_dates::all : dates_shown(), text(field::scheduled_for)});
            run_selected(list, command, launch);
        };
        and_put_back(run, [&] { list.SetFilter(users_own); });
    };
    and_put_back(in_own_filter, [&] { view.SetActiveTab(tab); });
}

// The view may stand on another page of ACT!, and then doesn't follow.
void Launcher::show_contact(const std::string& contact) {
    act::ContactView& view = *act_.session.ActContactView;
    if (view.Goto(contact) == contact)
        return;
    Command(act::CommandNumber::show_contact_view);
    view.Goto(contact);
}

std::string Launcher::dates_shown() const {
    return act::filter_dates::text_of({layout_.StartDate(), layout_.after_last_day()}, here_.locale);
}

void Launcher::run_selected(act::ActivityList& list, act::CommandNumber command, const Launch& launch) {
    const std::string id = text(field::id);
    const int count = list.GetRowCount();
    int row = 0;
    while (row < count && list.GetField(field::id, row) != id)
        ++row;
    if (row == count)
        return;
    list.SelectRow(row, true);
    if (launch.startCompanion)
        start_companion();
    Command(command);
}

std::string Launcher::text(int number) { return values::text_of(activity().Data(number), here_.locale); }

} // namespace interaction
