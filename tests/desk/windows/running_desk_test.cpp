#include "desk/windows/running_desk.h"

#include "core/values/failure.h"
#include "desk/windows/activity_commands.h"
#include "desk/windows/activity_list.h"
#include "desk/windows/contact_page.h"
#include "desk_fixture.h"

#include <QLineEdit>

#include <filesystem>

using namespace windows;

namespace {

class RunningDeskTest : public DeskTest {
protected:
    RunningDeskTest()
        : lookup(database), page(database, lookup), activity_commands(database, lookup, page),
          desk(database, {.lookup = lookup, .page = page},
               {.by_number = commands, .on_activities = activity_commands}) {
        database.open(path);
    }
    model::ContactView& view() { return desk.contact_view(); }

    Lookup lookup;
    ContactPage page;
    CommandTable commands;
    ActivityCommands activity_commands;
    RunningDesk desk;
};

} // namespace

TEST_F(RunningDeskTest, TellsTheAbsolutePathOfTheDatabase) {
    EXPECT_EQ(desk.database_path(), path);
    const auto relative = std::filesystem::relative(path).string();
    database.open(relative);
    EXPECT_TRUE(std::filesystem::path(desk.database_path()).is_absolute());
    EXPECT_TRUE(std::filesystem::equivalent(desk.database_path(), path));
    database.close();
    EXPECT_EQ(desk.database_path(), "");
}

TEST_F(RunningDeskTest, TellsThatTheDatabaseHasClosedAlsoWhenAnotherOneOpens) {
    std::vector<std::string> paths;
    desk.on_database_closed = [&] { paths.push_back(desk.database_path()); };
    database.open(path);
    database.close();
    EXPECT_EQ(paths, (std::vector<std::string>{"", ""}));
}

TEST_F(RunningDeskTest, MakesALookupAndCountsItsContacts) {
    view().create_lookup({cedar, "NOBODY000000", birch});
    EXPECT_EQ(view().contact_count(), 2);
    EXPECT_EQ(lookup.current(), birch);
}

TEST_F(RunningDeskTest, GoesToAContactAndTellsWhichOneIsShown) {
    EXPECT_EQ(view().go_to(cedar), cedar);
    EXPECT_EQ(page.activities().contact(), cedar);
    EXPECT_EQ(view().go_to("NOBODY000000"), cedar);
    view().create_lookup({birch});
    EXPECT_EQ(view().go_to(amber), amber);
    EXPECT_EQ(view().contact_count(), 1);
}

TEST_F(RunningDeskTest, FindsAContactThatTheCallerJustAdded) {
    const auto elm = contact(*elsewhere(), "Elm House", "Vera Upton");
    EXPECT_EQ(view().go_to(elm), elm);
    const auto fir = contact(*elsewhere(), "Fir Farm", "Tom Ives");
    view().create_lookup({fir});
    EXPECT_EQ(view().contact_count(), 1);
}

TEST_F(RunningDeskTest, FindsTheActivityThatTheCallerAsksFor) {
    view().go_to(amber);
    view().set_active_tab("Activities");
    const auto saved = view().activity_filter();
    view().set_activity_filter({234, "6\\3/4/2024\\3/11/2024", bert});
    ASSERT_EQ(view().activity_count(), 1);
    EXPECT_EQ(view().activity(0).id, meeting);
    view().select_activity(0, true);
    EXPECT_EQ(page.activities().current_id(), meeting);
    view().set_activity_filter(saved);
    EXPECT_EQ(view().activity_count(), 2);
    EXPECT_EQ(view().activity_filter().mask, saved.mask);
    EXPECT_EQ(view().activity_filter().dates, saved.dates);
    EXPECT_EQ(view().activity_filter().users, saved.users);
}

TEST_F(RunningDeskTest, AFilterThatCantBeReadFailsAndChangesNothing) {
    view().set_activity_filter({232, "1", anna});
    EXPECT_THROW(view().set_activity_filter({228, "9", bert}), values::Failure);
    EXPECT_EQ(view().activity_filter().mask, 232);
    EXPECT_EQ(view().activity_filter().users, anna);
}

TEST_F(RunningDeskTest, WhatIsBeingTypedIsStoredBeforeAnotherContactIsShown) {
    page.show();
    retype(child<QLineEdit>(page, "field_26"), "Zoe Adams");
    view().go_to(birch);
    EXPECT_EQ(elsewhere()->contact(amber)->fields[26], "Zoe Adams");
}

TEST_F(RunningDeskTest, WhatCantBeStoredFailsAndTheContactStays) {
    page.show();
    retype(child<QLineEdit>(page, "field_26"), "Mine");
    auto other = elsewhere();
    auto theirs = *other->contact(amber);
    theirs.fields[26] = "Theirs";
    other->update(theirs);
    EXPECT_THROW(view().go_to(birch), values::Failure);
    EXPECT_THROW(view().create_lookup({birch}), values::Failure);
    EXPECT_EQ(lookup.current(), amber);
    EXPECT_EQ(child<QLineEdit>(page, "field_26")->text(), "Mine");
}

TEST_F(RunningDeskTest, RunsCommandsByTheTable) {
    bool is_finished = false;
    commands.add(act::CommandNumber::show_contact_view,
                 [](const CommandTable::Finished& finished) { finished(); });
    desk.run_command(act::CommandNumber::show_contact_view, [&] { is_finished = true; });
    EXPECT_TRUE(is_finished);
    EXPECT_THROW(desk.run_command(act::CommandNumber::send_activity, [] {}), values::Failure);
}
