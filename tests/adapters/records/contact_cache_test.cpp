#include "adapters/records/contact_cache.h"

#include "desk/store/contact_fields.h"
#include "records_fixture.h"

using records::ContactCache;
using store::Id;
namespace contact_field = store::contact_field;

namespace {

class Contacts : public testing::Test {
protected:
    support::TemporaryDatabase file;
    store::Store& store = file.store();
    ContactCache cache{store.reading()};

    Id add(const std::string& name, const std::string& city) {
        return Id(store.add(store::Contact{.fields = {{contact_field::name, name}, {contact_field::city, city}}}));
    }
    void rename(const Id& id, const std::string& name) {
        store::Contact contact = *store.contact(id.text());
        contact.fields[contact_field::name] = name;
        store.update(contact);
    }
    std::string field(const Id& id, int number) {
        const std::string* value = cache.field(id, number);
        return value ? *value : "no contact";
    }
};

} // namespace

TEST_F(Contacts, GiveFieldsInWhateverOrderTheyAreAskedFor) {
    const Id ann = add("Ann", "Aachen"), bob = add("Bob", "Berlin");
    EXPECT_TRUE(cache.exists(ann));
    EXPECT_EQ(field(ann, contact_field::name), "Ann");
    EXPECT_EQ(field(bob, contact_field::city), "Berlin");
    EXPECT_EQ(field(ann, contact_field::city), "Aachen");
    EXPECT_EQ(field(bob, contact_field::name), "Bob");
    EXPECT_EQ(field(bob, contact_field::fax), "");
    EXPECT_EQ(field(ann, contact_field::name), "Ann");
}

TEST_F(Contacts, GiveNoneForOneThatThereIsNot) {
    EXPECT_FALSE(cache.exists(Id("C99999999999")));
    EXPECT_EQ(cache.field(Id("C99999999999"), contact_field::name), nullptr);
    const Id ann = add("Ann", "Aachen");
    EXPECT_EQ(field(ann, contact_field::name), "Ann");
}

TEST_F(Contacts, StayAsTheyWereReadUntilTheyAreForgotten) {
    const Id ann = add("Ann", "Aachen"), bob = add("Bob", "Berlin");
    for (const Id& id : {ann, bob})
        field(id, contact_field::name);
    rename(ann, "Anne");
    rename(bob, "Bobby");
    EXPECT_EQ(field(ann, contact_field::name), "Ann");
    cache.forget(ann);
    EXPECT_EQ(field(ann, contact_field::name), "Anne");
    EXPECT_EQ(field(bob, contact_field::name), "Bob");
    cache.forget_all();
    EXPECT_EQ(field(bob, contact_field::name), "Bobby");
}
