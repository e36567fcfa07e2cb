#include "core/interaction/launcher.h"

#include "core/settings/catalogue.h"
#include "interaction_world.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using act::CommandNumber;
using Calls = std::vector<std::string>;
namespace keys = settings::keys;

// The store of the values for the companion, which can refuse a removal.
class StubbornUserStore : public support::FakeUserStore {
public:
    bool remove(const std::string& branch, const std::string& name) override {
        return !refuses_removals && FakeUserStore::remove(branch, name);
    }
    bool refuses_removals = false;
};

class Launcher : public testing::Test, protected support::InteractionWorld {
protected:
    // What was left for the companion under a name; "absent" where there is nothing.
    std::string left(const std::string& name) { return user_store.read("Activity", name, "absent"); }
    void set_up_at_nine(const std::string& type = "C") {
        hands.launcher.Setup_ActivityWin(cell(row_of(1), col_of(10)), type);
    }
    void launch(const std::string& id, CommandNumber command = CommandNumber::edit_activity, bool allDates = false,
                bool showCleared = false, bool startCompanion = false) {
        hands.launcher.Select_and_Launch_Command(
            id, command, {.allDates = allDates, .showCleared = showCleared, .startCompanion = startCompanion});
    }
    std::string filter_of(const std::string& id, bool showCleared = false) {
        forget();
        launch(id, CommandNumber::edit_activity, true, showCleared);
        const auto call = std::find_if(record.calls.begin(), record.calls.end(),
                                       [](const std::string& one) { return one.starts_with("SetFilter "); });
        return call == record.calls.end() ? "none" : *call;
    }
    void expect_the_users_own_filter_and_tab() {
        EXPECT_EQ(running_desk.tab, "Notes");
        EXPECT_EQ(running_desk.filter.mask, 36);
        EXPECT_EQ(running_desk.filter.dates, "4");
        EXPECT_EQ(running_desk.filter.users, bob);
    }
    void have_a_filter_and_tab() { running_desk.filter = {36, "4", bob}; }
};

TEST_F(Launcher, LeavesWhereAndWhenTheCellStandsForTheCompanion) {
    set("Settings", "ActyRegarding", "Monthly figures");
    set("Settings", "ActyPriority", "H");
    open();
    set_up_at_nine("C");
    EXPECT_EQ(left("Type"), "C");
    EXPECT_EQ(left("Date"), "1/10/2024");
    EXPECT_EQ(left("Time"), "9:00:00 AM");
    EXPECT_EQ(left("Duration"), "60");
    EXPECT_EQ(left("Regarding"), "Monthly figures");
    EXPECT_EQ(left("Priority"), "H");
    EXPECT_EQ(left("For"), "Ann");
    EXPECT_EQ(left("RecurringEdit"), "absent");
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(Launcher, LeavesNoRegardingAndALowPriorityWhereTheSettingsSayNothing) {
    open();
    set_up_at_nine("T");
    EXPECT_EQ(left("Type"), "T");
    EXPECT_EQ(left("Regarding"), "");
    EXPECT_EQ(left("Priority"), "L");
}

TEST_F(Launcher, StartsTheCompanionOnceItsValuesAreThere) {
    open();
    std::string type_at_start = "not started";
    struct Watch : support::FakeShell {
        std::function<void()> on_start;
        bool start_companion(const std::string& name) override {
            return on_start(), FakeShell::start_companion(name);
        }
    } watch;
    watch.on_start = [&] { type_at_start = left("Type") + left("For"); };
    const host::Platform watched{{application, here.locale, clock, box, watch, files, folders, user_values},
                                 window};
    interaction::Launcher launcher(watched, settings, act, calendar.layout);
    launcher.Setup_ActivityWin(cell(row_of(1), col_of(10)), "M");
    EXPECT_EQ(watch.started, Calls{"ActivityWin"});
    EXPECT_EQ(type_at_start, "MAnn");
}

TEST_F(Launcher, InSharedRowsTakesForAwayOfAnEarlierActivity) {
    user_store.write("Activity", "For", "Bob");
    open(7, false);
    set_up_at_nine();
    EXPECT_EQ(left("For"), "absent");
    EXPECT_EQ(shell.started, Calls{"ActivityWin"});
}

TEST_F(Launcher, OnAFirstRunIgnoresThatThereIsNoForToTakeAway) {
    open(7, false);
    set_up_at_nine();
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(left("Type"), "C");
    EXPECT_EQ(shell.started, Calls{"ActivityWin"});
}

TEST_F(Launcher, IgnoresThatForCanNotBeTakenAway) {
    open(7, false);
    StubbornUserStore stubborn;
    stubborn.refuses_removals = true;
    const host::Platform refusing{{application, here.locale, clock, box, shell, files, folders, stubborn}, window};
    settings::Settings values{refusing};
    values.ini.SettingsFile = ini.SettingsFile;
    values.user_store.write("Activity", "For", "Bob");
    interaction::Launcher launcher(refusing, values, act, calendar.layout);
    launcher.Setup_ActivityWin(cell(row_of(1), col_of(10)), "C");
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(shell.started, Calls{"ActivityWin"});
}

TEST_F(Launcher, ShowsTheBoxWhereTheValuesCanNotBeLeftAndStartsNoCompanion) {
    open();
    user_values.refuses_writes = true;
    set_up_at_nine();
    EXPECT_NE(only_box().find("\rin frmMain: Sub Setup_ActivityWin - Line # 10\r"), std::string::npos)
        << only_box();
    EXPECT_EQ(shell.started, Calls{});
}

TEST_F(Launcher, SelectsAnActivityInTheDeskAndRunsTheCommandInThisOrder) {
    const std::string id = add(meeting(10, 9));
    open();
    launch(id);
    EXPECT_EQ(record.calls, (Calls{"Goto " + id, "Data(25)", "Data(40)", "view Goto " + chris, "GetActiveTab",
                                   "SetActiveTab Activities", "GetFilter", "Data(37)",
                                   "SetFilter 232 6\\1/7/2024\\1/14/2024 " + ann, "Data(1)", "SelectRow 0",
                                   "Command 1337", "SetFilter 252 1 ", "SetActiveTab Notes"}));
    EXPECT_EQ(window.calls, (Calls{"unlock_updates", "bring_to_front"}));
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(shell.started, Calls{});
}

TEST_F(Launcher, AsksForTheActivitysOwnTypeAndForClearedOnesWhenToldTo) {
    store::Activity activity = meeting(10, 9);
    activity.type = store::ActivityType::call;
    const std::string call = add(activity);
    activity.type = store::ActivityType::to_do;
    activity.user = bob;
    const std::string to_do = add(activity);
    const std::string met = add(meeting(10, 9));
    open();
    EXPECT_EQ(filter_of(call), "SetFilter 228 1 " + ann);
    EXPECT_EQ(filter_of(met), "SetFilter 232 1 " + ann);
    EXPECT_EQ(filter_of(to_do), "SetFilter 240 1 " + bob);
    EXPECT_EQ(filter_of(call, true), "SetFilter 230 1 " + ann);
    EXPECT_EQ(filter_of(met, true), "SetFilter 234 1 " + ann);
    EXPECT_EQ(filter_of(to_do, true), "SetFilter 242 1 " + bob);
}

TEST_F(Launcher, InTheDailyViewAsksForTheDayAndTheOneBehindIt) {
    const std::string id = add(meeting(10, 9));
    open(1);
    launch(id);
    EXPECT_EQ(record.calls.at(8), "SetFilter 232 6\\1/10/2024\\1/11/2024 " + ann);
    EXPECT_EQ(running_desk.commands, std::vector<int>{1337});
}

TEST_F(Launcher, SelectsTheRowOfTheActivityAmongTheOthersOfItsContact) {
    add(meeting(9, 9));
    const std::string id = add(meeting(10, 9));
    add(meeting(11, 9));
    open();
    launch(id);
    EXPECT_EQ(running_desk.selected, id);
    EXPECT_EQ(running_desk.commands, std::vector<int>{1337});
}

TEST_F(Launcher, BringsUpTheContactViewWhereTheDeskDoesNotFollowAndGoesOnceMore) {
    const std::string id = add(meeting(10, 9));
    open();
    running_desk.moves_missed = 1;
    launch(id);
    EXPECT_EQ(Calls(record.calls.begin() + 3, record.calls.begin() + 7),
              (Calls{"view Goto " + chris, "Command 701", "view Goto " + chris, "GetActiveTab"}));
    EXPECT_EQ(running_desk.commands, (std::vector<int>{701, 1337}));
}

TEST_F(Launcher, StartsTheCompanionBetweenTheSelectionAndTheCommandWhenToldTo) {
    const std::string id = add(meeting(10, 9));
    open();
    std::size_t started_before_command = 0;
    running_desk.on_command = [&](CommandNumber) { started_before_command = shell.started.size(); };
    launch(id, CommandNumber::edit_activity, true, false, true);
    EXPECT_EQ(shell.started, Calls{"ActivityWin"});
    EXPECT_EQ(started_before_command, 1U);
    EXPECT_EQ(left("Type"), "absent") << "the values are left by Setup_ActivityWin alone";
}

TEST_F(Launcher, AnActivityThatTheListDoesNotShowOpensNoDialogAndIsNoFailure) {
    store::Activity activity = meeting(10, 9);
    activity.cleared = true;
    const std::string id = add(activity);
    open();
    have_a_filter_and_tab();
    launch(id, CommandNumber::edit_activity, false, false, true);
    EXPECT_EQ(running_desk.commands, std::vector<int>{});
    EXPECT_EQ(running_desk.selected, "");
    EXPECT_EQ(shell.started, Calls{});
    EXPECT_TRUE(box.shown.empty());
    expect_the_users_own_filter_and_tab();
    EXPECT_EQ(window.calls, (Calls{"unlock_updates", "bring_to_front"}));
}

TEST_F(Launcher, AnActivityThatIsGoneOpensNoDialog) {
    const std::string id = add(meeting(10, 9));
    open();
    have_a_filter_and_tab();
    store().remove_activity(id);
    launch(id);
    EXPECT_EQ(record.calls, Calls{"Goto " + id}) << "the desk isn't asked for it";
    expect_the_users_own_filter_and_tab();
    EXPECT_TRUE(box.shown.empty());
    EXPECT_EQ(window.calls, (Calls{"unlock_updates", "bring_to_front"}));
}

TEST_F(Launcher, TheUsersOwnFilterAndTabAreTheSameAfterACommandAsBeforeIt) {
    const std::string id = add(meeting(10, 9));
    open();
    have_a_filter_and_tab();
    running_desk.on_command = [&](CommandNumber) {
        EXPECT_EQ(running_desk.tab, "Activities");
        EXPECT_EQ(running_desk.filter.mask, 232);
    };
    launch(id);
    EXPECT_EQ(running_desk.commands.size(), 1U);
    expect_the_users_own_filter_and_tab();
}

TEST_F(Launcher, TheUsersOwnFilterAndTabAreTheSameAfterACommandThatFails) {
    const std::string id = add(meeting(10, 9));
    open();
    have_a_filter_and_tab();
    fail_before("Command", "Another activity is being worked on already.");
    launch(id);
    expect_the_users_own_filter_and_tab();
    EXPECT_TRUE(only_box().starts_with("Error 440: 'Another activity is being worked on already.'\r"
                                       "in frmMain: Sub Select_and_Launch_Command - Line # "));
    EXPECT_EQ(window.calls, Calls{}) << "the procedure was left";
}

TEST_F(Launcher, TheUsersOwnFilterAndTabAreTheSameWhereverTheDeskFails) {
    const std::string id = add(meeting(10, 9));
    open();
    have_a_filter_and_tab();
    for (const std::string call : {"SetActiveTab Activities", "GetFilter", "Data(37)", "SetFilter 232", "Data(1)",
                                   "SelectRow", "SetFilter 36", "SetActiveTab Notes"}) {
        forget();
        fail_before(call);
        launch(id);
        EXPECT_TRUE(only_box().starts_with("Error 440: 'The desk has gone.'\r")) << call;
        EXPECT_EQ(record.before, nullptr) << call << " wasn't called";
        EXPECT_EQ(running_desk.filter.mask, call == "SetFilter 36" ? 232 : 36) << call;
        EXPECT_EQ(running_desk.tab, call == "SetActiveTab Notes" ? "Activities" : "Notes") << call;
        have_a_filter_and_tab();
        running_desk.tab = "Notes";
    }
}

TEST_F(Launcher, TellsTheFirstFailureAloneWhereThePuttingBackFailsAsWell) {
    const std::string id = add(meeting(10, 9));
    open();
    bool has_gone = false;
    record.before = [&](const std::string& call) {
        has_gone = has_gone || call.starts_with("Command");
        if (has_gone)
            throw values::Failure(values::FailureNumber::automation,
                                  call.starts_with("Command") ? "The desk has gone." : "It can't be reached.");
    };
    launch(id);
    EXPECT_TRUE(only_box().starts_with("Error 440: 'The desk has gone.'\r"));
}

TEST_F(Launcher, AFailingDeskLeavesTheCalendarAsItWas) {
    const std::string id = add(meeting(10, 9));
    open();
    const auto before = revision();
    fail_before("view Goto");
    launch(id);
    EXPECT_NE(only_box().find("Sub Select_and_Launch_Command - Line # 30\r"), std::string::npos);
    EXPECT_EQ(revision(), before);
    EXPECT_EQ(shown(row_of(1), col_of(10)), "Chris Smith");
    EXPECT_EQ(running_desk.tab, "Notes");
}

} // namespace
