#include "adapters/records/desk_database.h"

#include "records_fixture.h"
#include "support/locales.h"

using support::DeskData;
using support::failure_number;
using support::meeting;
using support::rest_of;
using support::text;

namespace {

class OpenEx : public DeskData {};
class Close : public DeskData {};
class OneLook : public DeskData {};

} // namespace

TEST_F(OpenEx, OpensTheDatabaseThatTheDeskHasOpen) {
    store.add(meeting("monday"));
    EXPECT_EQ(rest_of(*database->Activity()), "monday ");
}

TEST_F(OpenEx, OpensAFileByItsPath) {
    support::TemporaryDatabase other;
    other.store().add(meeting("elsewhere"));
    database->OpenEx(other.path());
    EXPECT_EQ(rest_of(*database->Activity()), "elsewhere ");
}

TEST_F(OpenEx, FailsWhenTheDeskHasNoDatabaseOpen) {
    const auto none = records::make_database([] { return std::string(); });
    EXPECT_EQ(failure_number([&] { none->OpenEx(""); }), 440);
}

TEST_F(OpenEx, LetsTheFailureOfTheDeskThrough) {
    const auto unreachable = records::make_database([]() -> std::string {
        throw values::Failure(values::FailureNumber::automation, "The desk doesn't answer.");
    });
    EXPECT_EQ(failure_number([&] { unreachable->OpenEx(""); }), 440);
}

TEST_F(OpenEx, KeepsTheDatabaseThatWasOpenWhenTheNextCannotBe) {
    store.add(meeting("monday"));
    EXPECT_EQ(failure_number([&] { database->OpenEx(file.path() + ".none"); }), 440);
    EXPECT_EQ(rest_of(*database->Activity()), "monday ");
}

TEST_F(OpenEx, ReadsTextsThatStandForDatesInItsLocale) {
    const auto german = records::make_database([this] { return file.path(); }, support::german());
    german->OpenEx("");
    const auto list = german->Activity();
    list->Add();
    list->Data(act::activity_field::start, std::string("01.05.2024 14:30:00"));
    list->Update();
    EXPECT_EQ(list->Data(act::activity_field::start), act::Value(values::DateTime::of(2024, 5, 1, 14, 30)));
}

TEST_F(Close, LeavesTheObjectsThatOutliveItFailing) {
    store.add(meeting("monday"));
    const auto list = database->Activity();
    list->Rebuild();
    database->Close();
    EXPECT_EQ(failure_number([&] { list->Rebuild(); }), 440);
    EXPECT_EQ(failure_number([&] { list->isEOF(); }), 440);
    EXPECT_EQ(failure_number([&] { list->Goto("A00000000001"); }), 440);
    EXPECT_EQ(failure_number([&] { list->Add(); }), 440);
    EXPECT_EQ(failure_number([&] { database->Contact(); }), 440);
    EXPECT_EQ(failure_number([&] { database->Activity(); }), 440);
    EXPECT_EQ(failure_number([&] { database->Users(); }), 440);
    EXPECT_EQ(failure_number([&] { database->Group(); }), 440);
    database->Close();
}

TEST_F(Close, AllowsOpeningAgain) {
    store.add(meeting("monday"));
    database->Close();
    database->OpenEx("");
    EXPECT_EQ(rest_of(*database->Activity()), "monday ");
}

TEST_F(OpenEx, ReadsADatabaseWhileAnotherProcessHoldsItForWriting) {
    store.add(meeting("monday"));
    store.together([&] {
        store.add(meeting("unseen"));
        const auto reader = records::make_database([this] { return file.path(); });
        reader->OpenEx("");
        EXPECT_EQ(rest_of(*reader->Activity()), "monday ");
    });
}

TEST_F(OneLook, SeesWhatWasWrittenBeforeItAndNothingMoreUntilItEnds) {
    const std::string id = store.add(store::Contact{.fields = {{26, "Max"}}});
    act::Contact& contact = database->Contact();
    ASSERT_TRUE(contact.Goto(id));
    const auto rename = [&](const std::string& name) {
        store::Contact changed = *store.contact(id);
        changed.fields[26] = name;
        store.update(changed);
    };
    rename("Maxine");
    {
        const auto look = database->One_Look();
        contact.Goto(id);
        EXPECT_EQ(text(contact.Data(26)), "Maxine");
        rename("Moritz");
        const auto inner = database->One_Look();
        contact.Goto(id);
        EXPECT_EQ(text(contact.Data(26)), "Maxine");
    }
    contact.Goto(id);
    EXPECT_EQ(text(contact.Data(26)), "Moritz");
}

TEST_F(OneLook, MayOutliveTheDatabaseAndNeedsNone) {
    const auto look = database->One_Look();
    database->Close();
    EXPECT_EQ(database->One_Look(), nullptr);
}
