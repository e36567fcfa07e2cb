#include "desk/store/expect_failure.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <stdexcept>

using store::Activity;
using store::Contact;
using store::Note;
using store::User;
using support::store_failure;
using support::TemporaryDatabase;
using values::DateTime;

namespace {

Activity meeting(const std::string& regarding) {
    Activity activity;
    activity.regarding = regarding;
    activity.start = DateTime::of(2024, 3, 12, 10);
    activity.duration = 60;
    return activity;
}

} // namespace

TEST(Store, StartsEmpty) {
    TemporaryDatabase database;
    EXPECT_TRUE(database.store().users().empty());
    EXPECT_TRUE(database.store().groups().empty());
    EXPECT_TRUE(database.store().contacts().empty());
    EXPECT_TRUE(database.store().activities({}).empty());
    EXPECT_EQ(database.store().revision(), 0);
    EXPECT_FALSE(database.store().is_read_only());
    EXPECT_EQ(database.store().path(), database.path());
}

TEST(Store, KeepsItsRecordsAfterClosing) {
    TemporaryDatabase database;
    const std::string id = database.store().add(meeting("Budget"));
    database.close();
    EXPECT_EQ(database.open_again()->activity(id)->regarding, "Budget");
}

TEST(Store, HandsOutIdsOf12CharactersThatRise) {
    TemporaryDatabase database;
    std::string last;
    for (int i = 0; i < 40; ++i) {
        const std::string id = database.store().add(meeting("One of many"));
        EXPECT_EQ(id.size(), 12u);
        EXPECT_LT(last, id);
        last = id;
    }
}

TEST(Store, HandsOutNoIdThatCouldBeFoundAcrossTwoOthers) {
    TemporaryDatabase database;
    std::string joined;
    for (int i = 0; i < 120; ++i)
        joined += database.store().add(meeting("One of many"));
    for (std::size_t i = 0; i < joined.size(); i += 12)
        EXPECT_EQ(joined.find(joined.substr(i, 12)), i);
}

TEST(Store, NeverHandsOutAnIdTwiceWhenTheRecordIsGone) {
    TemporaryDatabase database;
    const std::string first = database.store().add(meeting("Gone soon"));
    database.store().remove_activity(first);
    EXPECT_LT(first, database.store().add(meeting("Next")));
}

TEST(Store, KeepsAnIdWithATrailingBlankThatTheRecordBrings) {
    TemporaryDatabase database;
    EXPECT_EQ(database.store().add(User{.id = "~Ab/1234567 ", .name = "Ann"}), "~Ab/1234567 ");
    Activity activity = meeting("Imported");
    activity.id = "99887766554 ";
    activity.user = "~Ab/1234567 ";
    EXPECT_EQ(database.store().add(activity), "99887766554 ");
    EXPECT_EQ(database.store().activity("99887766554 ")->user, "~Ab/1234567 ");
    EXPECT_EQ(database.store().activity("99887766554 ")->id, "99887766554 ");
}

TEST(Store, TakesAnIdThatLostItsTrailingBlank) {
    TemporaryDatabase database;
    database.store().add(User{.id = "~Ab/1234567", .name = "Ann"});
    EXPECT_EQ(database.store().users().front().id, "~Ab/1234567 ");
    Activity activity = meeting("For Ann");
    activity.user = "~Ab/1234567";
    EXPECT_EQ(database.store().activity(database.store().add(activity))->user, "~Ab/1234567 ");
}

TEST(Store, RefusesAnIdOfAnotherLengthOrWithOtherCharacters) {
    TemporaryDatabase database;
    for (const char* id :
         {"short", "much too long an id", "            ", "Ab\n123456789", "\xc3\xa4 234567890"}) {
        Activity activity = meeting("Odd");
        activity.id = id;
        EXPECT_NE(store_failure([&] { database.store().add(activity); }).find("12 characters"), std::string::npos);
    }
    EXPECT_TRUE(database.store().activities({}).empty());
}

TEST(Store, RefusesAnIdThatIsThereAlready) {
    TemporaryDatabase database;
    Activity activity = meeting("First");
    activity.id = "ABCDEFGHIJKL";
    database.store().add(activity);
    EXPECT_NE(store_failure([&] { database.store().add(activity); }).find("already"), std::string::npos);
}

TEST(Store, HandsOutIdsBehindThoseOfItsOwnFormThatWereBrought) {
    TemporaryDatabase database;
    Activity activity = meeting("From another database");
    activity.id = database.store().add(meeting("The first"));
    activity.id.back() = '7';
    database.store().add(activity);
    EXPECT_LT(activity.id, database.store().add(meeting("The next")));
}

TEST(Store, RaisesItsRevisionWithEachChange) {
    TemporaryDatabase database;
    std::int64_t last = database.store().revision();
    const auto expect_rise = [&](const char* what) {
        EXPECT_GT(database.store().revision(), last) << what;
        last = database.store().revision();
    };
    const std::string contact = database.store().add(Contact{});
    expect_rise("contact");
    database.store().add(User{.name = "Ann"});
    expect_rise("user");
    database.store().add(store::Group{});
    expect_rise("group");
    database.store().add(Note{.contact = contact, .written = database.now, .text = "Called."});
    expect_rise("note");
    const std::string id = database.store().add(meeting("Budget"));
    expect_rise("activity");
    database.store().update(*database.store().activity(id));
    expect_rise("update");
    database.store().remove_activity(id);
    expect_rise("removal");
}

TEST(Store, KeepsItsRevisionWhenNothingChanges) {
    TemporaryDatabase database;
    database.store().add(meeting("Budget"));
    const std::int64_t before = database.store().revision();
    database.store().activities({});
    database.store().remove_activity("no such act.");
    EXPECT_EQ(database.store().revision(), before);
}

TEST(Store, SeesTheRevisionOfAnotherProcess) {
    TemporaryDatabase database;
    const auto other = database.open_again();
    const std::int64_t before = database.store().revision();
    other->add(meeting("Budget"));
    EXPECT_EQ(database.store().revision(), other->revision());
    EXPECT_GT(database.store().revision(), before);
    database.store().add(meeting("Salaries"));
    EXPECT_EQ(database.store().revision(), other->revision());
}

TEST(Store, ListsUsersByName) {
    TemporaryDatabase database;
    database.store().add(User{.name = "bob", .security = "Standard", .access = "Enabled"});
    database.store().add(User{.name = "Ann", .security = "Administrator", .access = "Disabled"});
    const auto users = database.store().users();
    ASSERT_EQ(users.size(), 2u);
    EXPECT_EQ(users[0].name, "Ann");
    EXPECT_EQ(users[0].security, "Administrator");
    EXPECT_EQ(users[0].access, "Disabled");
    EXPECT_EQ(users[1].name, "bob");
}

TEST(Store, ListsTheNotesOfAContactNewestFirst) {
    TemporaryDatabase database;
    const std::string ann = database.store().add(Contact{}), bob = database.store().add(Contact{});
    database.store().add(Note{.contact = ann, .written = DateTime::of(2024, 3, 1, 9), .text = "Earlier"});
    database.store().add(Note{.contact = ann, .written = DateTime::of(2024, 3, 4, 9), .text = "Later"});
    database.store().add(Note{.contact = bob, .written = DateTime::of(2024, 3, 5, 9), .text = "Another's"});
    const auto notes = database.store().notes(ann);
    ASSERT_EQ(notes.size(), 2u);
    EXPECT_EQ(notes[0].text, "Later");
    EXPECT_EQ(notes[0].written, DateTime::of(2024, 3, 4, 9));
    EXPECT_EQ(notes[1].text, "Earlier");
    EXPECT_EQ(notes[1].contact, ann);
}

TEST(Store, RefusesANoteOfAContactThatThereIsNot) {
    TemporaryDatabase database;
    const Note note{.contact = "C99999999999", .written = database.now, .text = "For nobody"};
    EXPECT_NE(store_failure([&] { database.store().add(note); }).find("isn't in the database"), std::string::npos);
}

TEST(Store, KeepsTextsThatLookLikeStatements) {
    TemporaryDatabase database;
    const std::string nasty = "'); DROP TABLE activities; --\n\"\xf0\x9f\x93\x85\" ?1 \\0 %s";
    const std::string id = database.store().add(meeting(nasty));
    EXPECT_EQ(database.store().activity(id)->regarding, nasty);
}

TEST(Together, StoresAllWritesOfABlock) {
    TemporaryDatabase database;
    database.store().together([&] {
        database.store().add(meeting("One"));
        database.store().add(meeting("Two"));
    });
    EXPECT_EQ(database.open_again()->activities({}).size(), 2u);
}

TEST(Together, ShowsOtherProcessesNothingBeforeTheBlocksEnd) {
    TemporaryDatabase database;
    const auto other = database.open_again();
    database.store().together([&] {
        database.store().add(meeting("One"));
        EXPECT_EQ(database.store().activities({}).size(), 1u);
        EXPECT_TRUE(other->activities({}).empty());
    });
    EXPECT_EQ(other->activities({}).size(), 1u);
}

TEST(Together, StoresNothingWhenTheBlockThrows) {
    TemporaryDatabase database;
    const std::int64_t before = database.store().revision();
    const auto failing = [&] {
        database.store().add(meeting("One"));
        throw std::runtime_error("no more");
    };
    EXPECT_THROW(database.store().together(failing), std::runtime_error);
    EXPECT_TRUE(database.store().activities({}).empty());
    EXPECT_EQ(database.store().revision(), before);
    database.store().add(meeting("Works again"));
    EXPECT_EQ(database.store().activities({}).size(), 1u);
}

TEST(Together, UndoesOnlyAnInnerBlockThatThrows) {
    TemporaryDatabase database;
    database.store().together([&] {
        database.store().add(meeting("Kept"));
        const auto failing = [&] {
            database.store().add(meeting("Lost"));
            throw std::runtime_error("no more");
        };
        EXPECT_THROW(database.store().together(failing), std::runtime_error);
        database.store().add(meeting("Kept too"));
    });
    const auto activities = database.store().activities({});
    ASSERT_EQ(activities.size(), 2u);
    EXPECT_EQ(activities[0].regarding, "Kept");
    EXPECT_EQ(activities[1].regarding, "Kept too");
    EXPECT_NE(activities[0].id, activities[1].id);
    EXPECT_NE(activities[0].revision, activities[1].revision);
}

TEST(Store, SeesOneMomentFromTheFirstReadingToTheEndOfReading) {
    TemporaryDatabase database;
    const auto other = database.open_again();
    database.store().add(meeting("first"));
    other->begin_reading();
    EXPECT_EQ(other->activities({}).size(), 1u);
    const std::int64_t revision = other->revision();
    database.store().add(meeting("second"));
    EXPECT_EQ(other->activities({}).size(), 1u);
    EXPECT_EQ(other->revision(), revision);
    other->end_reading();
    EXPECT_EQ(other->activities({}).size(), 2u);
    EXPECT_GT(other->revision(), revision);
}

TEST(Store, EndsReadingToWrite) {
    TemporaryDatabase database;
    const auto other = database.open_again();
    database.store().begin_reading();
    EXPECT_TRUE(database.store().activities({}).empty());
    other->add(meeting("theirs"));
    database.store().add(meeting("ours"));
    EXPECT_EQ(database.store().activities({}).size(), 2u);
    EXPECT_EQ(other->activities({}).size(), 2u);
    database.store().end_reading();
    database.store().end_reading();
    EXPECT_EQ(other->activities({}).size(), 2u);
}

TEST(Store, ReadsInsideABlockOfWritesAsEver) {
    TemporaryDatabase database;
    database.store().together([&] {
        database.store().begin_reading();
        database.store().add(meeting("ours"));
        EXPECT_EQ(database.store().activities({}).size(), 1u);
        database.store().end_reading();
    });
    EXPECT_EQ(database.open_again()->activities({}).size(), 1u);
}
