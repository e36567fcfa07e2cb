#include "desk/windows/open_toolbar_commands.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

using windows::OpenToolbarCommands;

using OpenToolbarCommandsTest = DeskTest;

TEST_F(OpenToolbarCommandsTest, AreThoseOfTheOpenDatabase) {
    OpenToolbarCommands commands(database);
    database.open(path);
    commands.add({"Orvanta", "/opt/orvanta", "/opt", "Orvanta", "Click to launch Orvanta", "", "", 1});
    EXPECT_TRUE(commands.place("Orvanta", store::CommandPlace::toolbar, 2));
    EXPECT_TRUE(commands.exists("Orvanta"));
    EXPECT_TRUE(commands.stands("Orvanta", store::CommandPlace::toolbar, 2));
    EXPECT_EQ(commands.at(store::CommandPlace::toolbar, 2).size(), 1u);
    EXPECT_TRUE(commands.displace("Orvanta", store::CommandPlace::toolbar, 2));
    EXPECT_EQ(commands.all().size(), 1u);
    database.create(in_folder("other.desk"));
    EXPECT_FALSE(commands.exists("Orvanta"));
}

TEST_F(OpenToolbarCommandsTest, FailWithoutADatabase) {
    OpenToolbarCommands commands(database);
    EXPECT_THROW(commands.exists("Orvanta"), values::Failure);
}
