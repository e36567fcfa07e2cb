#include "desk/store/toolbar_commands.h"

#include "support/temporary_database.h"

#include <gtest/gtest.h>

using store::CommandPlace;
using store::ToolbarCommand;

namespace {

ToolbarCommand calendar() {
    return {.name = "Orvanta",
            .program = "/opt/orvanta/orvanta",
            .folder = "/opt/orvanta",
            .title = "Orvanta",
            .caption = "Click to launch Orvanta",
            .icon = "/opt/orvanta/orvanta.ico",
            .large_icon = "/opt/orvanta/orvanta32.ico",
            .flag = 1};
}

class ToolbarCommands : public testing::Test {
protected:
    support::TemporaryDatabase database;
    store::ToolbarCommands& commands = database.store().toolbar_commands();
};

} // namespace

TEST_F(ToolbarCommands, KeepEveryFieldOfACommand) {
    EXPECT_FALSE(commands.exists("Orvanta"));
    commands.add(calendar());
    EXPECT_TRUE(commands.exists("Orvanta"));
    ASSERT_EQ(commands.all().size(), 1u);
    const ToolbarCommand read = commands.all().front();
    EXPECT_EQ(read.name, "Orvanta");
    EXPECT_EQ(read.program, "/opt/orvanta/orvanta");
    EXPECT_EQ(read.folder, "/opt/orvanta");
    EXPECT_EQ(read.title, "Orvanta");
    EXPECT_EQ(read.caption, "Click to launch Orvanta");
    EXPECT_EQ(read.icon, "/opt/orvanta/orvanta.ico");
    EXPECT_EQ(read.large_icon, "/opt/orvanta/orvanta32.ico");
    EXPECT_EQ(read.flag, 1);
}

TEST_F(ToolbarCommands, StandWhereTheyArePlacedInTheToolbarApartFromTheToolsMenu) {
    commands.add(calendar());
    EXPECT_TRUE(commands.place("Orvanta", CommandPlace::toolbar, 1));
    EXPECT_TRUE(commands.place("Orvanta", CommandPlace::tools_menu, 6));
    EXPECT_TRUE(commands.stands("Orvanta", CommandPlace::toolbar, 1));
    EXPECT_FALSE(commands.stands("Orvanta", CommandPlace::tools_menu, 1));
    EXPECT_TRUE(commands.stands("Orvanta", CommandPlace::tools_menu, 6));
    EXPECT_EQ(commands.at(CommandPlace::toolbar, 1).size(), 1u);
    EXPECT_TRUE(commands.at(CommandPlace::toolbar, 2).empty());
}

TEST_F(ToolbarCommands, MayBePlacedTwiceAndDisplacedOnce) {
    commands.add(calendar());
    EXPECT_TRUE(commands.place("Orvanta", CommandPlace::toolbar, 3));
    EXPECT_TRUE(commands.place("Orvanta", CommandPlace::toolbar, 3));
    EXPECT_TRUE(commands.displace("Orvanta", CommandPlace::toolbar, 3));
    EXPECT_FALSE(commands.displace("Orvanta", CommandPlace::toolbar, 3));
    EXPECT_FALSE(commands.stands("Orvanta", CommandPlace::toolbar, 3));
}

TEST_F(ToolbarCommands, HaveNoPlaceInAViewThatThereIsNotOrUnderAnUnknownName) {
    commands.add(calendar());
    EXPECT_FALSE(commands.place("Orvanta", CommandPlace::toolbar, 0));
    EXPECT_FALSE(commands.place("Orvanta", CommandPlace::toolbar, 7));
    EXPECT_FALSE(commands.place("Unknown", CommandPlace::toolbar, 1));
}

TEST_F(ToolbarCommands, KeepTheirPlacesWhenTheyAreAddedAgain) {
    commands.add(calendar());
    commands.place("Orvanta", CommandPlace::toolbar, 2);
    ToolbarCommand moved = calendar();
    moved.program = "/usr/bin/orvanta";
    commands.add(moved);
    EXPECT_EQ(commands.at(CommandPlace::toolbar, 2).front().program, "/usr/bin/orvanta");
}

TEST_F(ToolbarCommands, AreThereAfterTheDatabaseIsOpenedAgain) {
    commands.add(calendar());
    commands.place("Orvanta", CommandPlace::tools_menu, 4);
    database.close();
    EXPECT_TRUE(database.open_again()->toolbar_commands().stands("Orvanta", CommandPlace::tools_menu, 4));
}
