#include "desk/store/contact_fields.h"
#include "desk/store/expect_failure.h"
#include "support/conflict_of.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

using store::Contact;
using store::Group;
using support::conflict_of;
using support::store_failure;
using support::TemporaryDatabase;
using Cause = act::EditConflict::Cause;
namespace contact_field = store::contact_field;

namespace {

Contact contact(const std::string& company, const std::string& name) {
    Contact result;
    result.fields[contact_field::company] = company;
    result.fields[contact_field::name] = name;
    return result;
}

} // namespace

TEST(Contacts, KeepEveryField) {
    TemporaryDatabase database;
    Contact full;
    for (const store::ContactField& field : store::contact_fields())
        full.fields[field.number] = "Text of " + std::string(field.label);
    const std::string id = database.store().add(full);
    EXPECT_EQ(database.store().contact(id)->fields, full.fields);
    EXPECT_EQ(database.store().contact(id)->id, id);
}

TEST(Contacts, LeaveEmptyFieldsOut) {
    TemporaryDatabase database;
    const std::string id = database.store().add(contact("", "Ann Lee"));
    EXPECT_EQ(database.store().contact(id)->fields,
              (std::map<int, std::string>{{contact_field::name, "Ann Lee"}}));
}

TEST(Contacts, ComeByCompanyAndThenByNameWithoutRegardToCase) {
    TemporaryDatabase database;
    for (const auto& [company, name] : {std::pair("beta", "Zoe"), std::pair("Beta", "Adam"),
                                        std::pair("alpha", "Max"), std::pair("Gamma", "Eve")})
        database.store().add(contact(company, name));
    std::string names;
    for (Contact& one : database.store().contacts())
        names += one.fields[contact_field::name] + " ";
    EXPECT_EQ(names, "Max Adam Zoe Eve ");
}

TEST(Contacts, AreAbsentUnderAnUnknownId) {
    TemporaryDatabase database;
    EXPECT_FALSE(database.store().contact("C99999999999"));
    EXPECT_FALSE(database.store().contact(""));
}

TEST(Contacts, RefuseAFieldThatThereIsNot) {
    TemporaryDatabase database;
    Contact odd = contact("Alpha", "Max");
    odd.fields[99] = "nowhere to go";
    try {
        database.store().add(odd);
        FAIL();
    } catch (const values::Failure& failure) {
        EXPECT_EQ(failure.number(), 381);
    }
    EXPECT_TRUE(database.store().contacts().empty());
}

TEST(Contacts, TakeAChange) {
    TemporaryDatabase database;
    Contact changed = *database.store().contact(database.store().add(contact("Alpha", "Max")));
    changed.fields[contact_field::phone] = "+1 (212) 555-0143";
    changed.fields.erase(contact_field::company);
    const std::int64_t revision = database.store().update(changed);
    EXPECT_EQ(database.store().contact(changed.id)->fields, changed.fields);
    EXPECT_EQ(database.store().contact(changed.id)->revision, revision);
}

TEST(Contacts, RefuseAChangeThatSomebodyElseForestalled) {
    TemporaryDatabase database;
    const auto other = database.open_again();
    Contact mine = *database.store().contact(database.store().add(contact("Alpha", "Max")));
    Contact theirs = *other->contact(mine.id);
    theirs.fields[contact_field::city] = "Bern";
    other->update(theirs);
    mine.fields[contact_field::city] = "Rome";
    EXPECT_NE(store_failure([&] { database.store().update(mine); }).find("changed by somebody else"),
              std::string::npos);
    EXPECT_EQ(conflict_of([&] { database.store().update(mine); }), Cause::changed);
    EXPECT_EQ(database.store().contact(mine.id)->fields[contact_field::city], "Bern");
}

TEST(Groups, KeepTheirContactsInOrder) {
    TemporaryDatabase database;
    const std::string max = database.store().add(contact("Alpha", "Max"));
    const std::string eve = database.store().add(contact("Gamma", "Eve"));
    const std::string id = database.store().add(Group{.name = "Suppliers", .contacts = {eve, max}});
    database.store().add(Group{.name = "customers", .contacts = {max}});
    const auto groups = database.store().groups();
    ASSERT_EQ(groups.size(), 2u);
    EXPECT_EQ(groups[0].name, "customers");
    EXPECT_EQ(groups[1].id, id);
    EXPECT_EQ(groups[1].contacts, (std::vector<std::string>{eve, max}));
    EXPECT_EQ(database.store().group(id)->name, "Suppliers");
    EXPECT_FALSE(database.store().group("G99999999999"));
}

TEST(Groups, TakeAChange) {
    TemporaryDatabase database;
    const std::string max = database.store().add(contact("Alpha", "Max"));
    const std::string id = database.store().add(Group{.name = "Suppliers"});
    database.store().update(Group{.id = id, .name = "Partners", .contacts = {max}});
    EXPECT_EQ(database.store().group(id)->name, "Partners");
    EXPECT_EQ(database.store().group(id)->contacts, std::vector<std::string>{max});
    database.store().update(Group{.id = id, .name = "Partners"});
    EXPECT_TRUE(database.store().group(id)->contacts.empty());
}

TEST(Groups, RefuseAContactThatThereIsNotAndKeepWhatTheyHad) {
    TemporaryDatabase database;
    const std::string max = database.store().add(contact("Alpha", "Max"));
    const std::string id = database.store().add(Group{.name = "Suppliers", .contacts = {max}});
    const Group odd{.id = id, .name = "Odd", .contacts = {"C99999999999"}};
    EXPECT_NE(store_failure([&] { database.store().update(odd); }).find("isn't in the database"),
              std::string::npos);
    EXPECT_EQ(database.store().group(id)->name, "Suppliers");
    EXPECT_EQ(database.store().group(id)->contacts, std::vector<std::string>{max});
}

TEST(Groups, RefuseAChangeOfOneThatIsGone) {
    TemporaryDatabase database;
    const Group gone{.id = "G99999999999", .name = "Gone"};
    EXPECT_NE(store_failure([&] { database.store().update(gone); }).find("deleted"), std::string::npos);
    EXPECT_EQ(conflict_of([&] { database.store().update(gone); }), Cause::deleted);
}
