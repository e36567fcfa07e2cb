#include "core/act/edit_conflict.h"
#include "desk/store/contact_fields.h"
#include "records_fixture.h"

using support::DeskData;
using support::failure_number;
using support::text;
using support::Value;
namespace contact_field = store::contact_field;

namespace {

class Fields : public DeskData {};
class ContactTable : public DeskData {};
class GroupTable : public DeskData {};
class UserTable : public DeskData {};

} // namespace

TEST_F(Fields, AreAllFoundByWalkingThePositionsFrom0UntilTheirCount) {
    act::Fields& fields = database->Contact().Fields();
    int found = 0, position = 0, gaps = 0;
    for (; found < fields.Count(); ++position) {
        const int id = fields.ID(position);
        id == -1 ? ++gaps : ++found;
        if (id != -1) {
            EXPECT_FALSE(fields.Label(position).empty());
        }
    }
    EXPECT_EQ(position, contact_field::record_manager + 1);
    EXPECT_GT(gaps, 0);
}

TEST_F(Fields, HaveLabelsTypesAndPopupLists) {
    act::Fields& fields = database->Contact().Fields();
    EXPECT_EQ(fields.Label(contact_field::company), "Company");
    EXPECT_EQ(fields.Type(contact_field::company), "1");
    EXPECT_TRUE(fields.HasPopupList(contact_field::company));
    EXPECT_EQ(fields.Type(contact_field::phone), "4");
    EXPECT_FALSE(fields.HasPopupList(contact_field::phone));
}

TEST_F(Fields, FailWhereThereIsNone) {
    act::Fields& fields = database->Contact().Fields();
    for (const int number : {-1, 0, 24, 1000}) {
        EXPECT_EQ(fields.ID(number), -1);
        EXPECT_EQ(failure_number([&] { fields.Label(number); }), 381);
        EXPECT_EQ(failure_number([&] { fields.Type(number); }), 381);
        EXPECT_EQ(failure_number([&] { fields.HasPopupList(number); }), 381);
    }
}

TEST_F(ContactTable, GivesTheFieldsOfTheContactItWentTo) {
    store::Contact contact;
    contact.fields[contact_field::company] = "Alder & Finch";
    const std::string id = store.add(contact);
    EXPECT_TRUE(database->Contact().Goto(id));
    EXPECT_EQ(database->Contact().Data(contact_field::company), Value(std::string("Alder & Finch")));
    EXPECT_EQ(database->Contact().Data(contact_field::name), Value(std::string()));
    EXPECT_EQ(database->Contact().Data(1), Value(id));
    EXPECT_EQ(database->Contact().Data(24), Value());
}

TEST_F(ContactTable, GivesNothingWithoutARecord) {
    EXPECT_EQ(database->Contact().Data(contact_field::company), Value());
    const std::string id = store.add(store::Contact{});
    EXPECT_TRUE(database->Contact().Goto(id));
    EXPECT_FALSE(database->Contact().Goto("C99999999999"));
    EXPECT_EQ(database->Contact().Data(1), Value());
    EXPECT_FALSE(database->Contact().Goto(""));
}

TEST_F(ContactTable, SeesWhatAnotherProcessChanged) {
    store::Contact contact;
    contact.fields[contact_field::city] = "Bern";
    contact = *store.contact(store.add(contact));
    database->Contact().Goto(contact.id);
    contact.fields[contact_field::city] = "Basel";
    store.update(contact);
    EXPECT_TRUE(database->Contact().Goto(contact.id));
    EXPECT_EQ(text(database->Contact().Data(contact_field::city)), "Basel");
}

TEST_F(ContactTable, FindsAnIdThatLostItsTrailingBlank) {
    store.add(store::Contact{.id = "99887766554 "});
    EXPECT_TRUE(database->Contact().Goto("99887766554"));
    EXPECT_EQ(text(database->Contact().Data(1)), "99887766554 ");
}

TEST_F(ContactTable, StoresAChangeOfItsFields) {
    const std::string id = store.add(store::Contact{.fields = {{contact_field::name, "Ann"}}});
    act::Contact& contact = database->Contact();
    contact.Goto(id);
    contact.Data(contact_field::name);
    contact.Edit();
    contact.Data(contact_field::city, std::string("Bern"));
    contact.Data(contact_field::extension, std::int64_t{42});
    EXPECT_EQ(text(contact.Data(contact_field::city)), "Bern");
    EXPECT_EQ(store.contact(id)->fields.count(contact_field::city), 0U);
    EXPECT_EQ(contact.Update(), id);
    EXPECT_EQ(store.contact(id)->fields.at(contact_field::city), "Bern");
    EXPECT_EQ(store.contact(id)->fields.at(contact_field::extension), "42");
    EXPECT_EQ(store.contact(id)->fields.at(contact_field::name), "Ann");
    EXPECT_EQ(text(contact.Data(contact_field::city)), "Bern");
}

TEST_F(ContactTable, GivesAChangeUpWhenItGoesToARecord) {
    const std::string id = store.add(store::Contact{});
    act::Contact& contact = database->Contact();
    contact.Goto(id);
    contact.Edit();
    contact.Data(contact_field::city, std::string("Bern"));
    contact.Goto(id);
    EXPECT_EQ(text(contact.Data(contact_field::city)), "");
    EXPECT_EQ(failure_number([&] { contact.Update(); }), 440);
}

TEST_F(ContactTable, RefusesAChangeThatIsntBegunOrThatItCantStore) {
    act::Contact& contact = database->Contact();
    EXPECT_EQ(failure_number([&] { contact.Edit(); }), 91);
    const std::string id = store.add(store::Contact{});
    contact.Goto(id);
    EXPECT_EQ(failure_number([&] { contact.Data(contact_field::city, std::string("Bern")); }), 440);
    EXPECT_EQ(failure_number([&] { contact.Update(); }), 440);
    contact.Edit();
    EXPECT_EQ(failure_number([&] { contact.Data(1, std::string("C00000000001")); }), 440);
    EXPECT_EQ(failure_number([&] { contact.Data(24, std::string("x")); }), 381);
}

TEST_F(ContactTable, DoesntOverwriteWhatSomebodyElseChangedMeanwhile) {
    const std::string id = store.add(store::Contact{});
    act::Contact& contact = database->Contact();
    contact.Goto(id);
    contact.Edit();
    contact.Data(contact_field::city, std::string("Mine"));
    store::Contact theirs = *store.contact(id);
    theirs.fields[contact_field::city] = "Theirs";
    store.update(theirs);
    EXPECT_THROW(contact.Update(), act::EditConflict);
    EXPECT_EQ(store.contact(id)->fields.at(contact_field::city), "Theirs");
}

TEST_F(GroupTable, GivesTheIdAndTheName) {
    const std::string id = store.add(store::Group{.name = "Suppliers"});
    EXPECT_EQ(database->Group().Data(25), Value());
    EXPECT_TRUE(database->Group().Goto(id));
    EXPECT_EQ(text(database->Group().Data(1)), id);
    EXPECT_EQ(text(database->Group().Data(25)), "Suppliers");
    EXPECT_EQ(database->Group().Data(2), Value());
    EXPECT_FALSE(database->Group().Goto("G99999999999"));
    EXPECT_EQ(database->Group().Data(1), Value());
}

TEST_F(UserTable, GivesTheUsersByNameFromIndex1) {
    store.add(store::User{.id = "~Zz/1234567", .name = "Zoe", .security = "Standard", .access = "Disabled"});
    store.add(store::User{.name = "Ann", .security = "Administrator", .access = "Enabled"});
    database->OpenEx("");
    act::Users& users = database->Users();
    ASSERT_EQ(users.Count(), 2);
    EXPECT_EQ(users.name(1), "Ann");
    EXPECT_EQ(users.Security(1), "Administrator");
    EXPECT_EQ(users.Access(1), "Enabled");
    EXPECT_EQ(users.uniqueID(2), "~Zz/1234567 ");
    EXPECT_EQ(failure_number([&] { users.name(0); }), 9);
    EXPECT_EQ(failure_number([&] { users.uniqueID(3); }), 9);
    EXPECT_EQ(failure_number([&] { users.Security(3); }), 9);
    EXPECT_EQ(failure_number([&] { users.Access(-1); }), 9);
}

TEST_F(UserTable, KeepsItsPositionsWhileTheDatabaseIsOpen) {
    store.add(store::User{.name = "Bob"});
    database->OpenEx("");
    store.add(store::User{.name = "Ann"});
    database->Activity()->Rebuild();
    EXPECT_EQ(database->Users().Count(), 1);
    EXPECT_EQ(database->Users().name(1), "Bob");
}
