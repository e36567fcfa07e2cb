#include "adapters/records/shared_store.h"

#include "desk/store/contact_fields.h"
#include "records_fixture.h"

using records::SharedStore;
using support::meeting;

namespace {

class Sessions : public testing::Test {
protected:
    support::TemporaryDatabase file;
    store::Store& store = file.store();
    SharedStore session{file.open_again(), values::english_us()};
};

} // namespace

TEST_F(Sessions, GiveTheFieldsOfAContactAsTheyWereAtTheLastCatchUp) {
    store::Contact contact;
    contact.fields[store::contact_field::name] = "Max";
    contact = *store.contact(store.add(contact));
    const auto name = [&] { return *session.contacts().field(store::Id(contact.id), store::contact_field::name); };
    EXPECT_EQ(name(), "Max");
    contact.fields[store::contact_field::name] = "Maxine";
    store.update(contact);
    EXPECT_EQ(name(), "Max");
    session.catch_up();
    EXPECT_EQ(name(), "Maxine");
}

TEST_F(Sessions, GiveTheNameOfAGroupAsItWasAtTheLastCatchUp) {
    const std::string id = store.add(store::Group{.name = "Suppliers"});
    EXPECT_EQ(*session.group_name(id), "Suppliers");
    store.update(store::Group{.id = id, .name = "Partners"});
    session.catch_up();
    EXPECT_EQ(*session.group_name(id), "Partners");
}

TEST_F(Sessions, GiveNothingForAGroupThatThereIsNot) { EXPECT_EQ(session.group_name(""), nullptr); }

TEST_F(Sessions, CatchUpWithMoreChangesThanTheyTakeIn) {
    const std::string first = store.add(meeting("first"));
    records::ActivityCache::Hint hint = 0;
    ASSERT_NE(session.activities().first({}, hint), nullptr);
    store.together([&] {
        for (int i = 0; i < 20100; ++i)
            store.add(store::Note{.contact = i == 0 ? store.add(store::Contact{}) : store.contacts().front().id});
    });
    store.remove_activity(first);
    session.catch_up();
    EXPECT_EQ(session.activities().first({}, hint), nullptr);
}

TEST_F(Sessions, TellWhatHasChangedBehindAMoment) {
    using Ids = std::unordered_set<store::Id>;
    const std::string first = store.add(meeting("first"));
    session.catch_up();
    const std::int64_t moment = session.moment();
    EXPECT_EQ(session.changed_since(moment), Ids{});
    store.remove_activity(first);
    EXPECT_EQ(session.changed_since(moment), Ids{}) << "before it is taken in";
    session.catch_up();
    const std::int64_t later = session.moment();
    const std::string second = store.add(meeting("second"));
    session.catch_up();
    EXPECT_EQ(session.changed_since(moment), (Ids{store::Id(first), store::Id(second)}));
    EXPECT_EQ(session.changed_since(later), Ids{store::Id(second)});
    EXPECT_EQ(session.changed_since(session.moment()), Ids{});
}

TEST_F(Sessions, DoNotKnowWhatHasChangedBehindAMomentBeforeTheyWereOpened) {
    EXPECT_FALSE(session.changed_since(session.moment() - 1));
}

TEST_F(Sessions, ForgetWhatHasChangedWhereItWasTooMuch) {
    const std::int64_t moment = session.moment();
    for (int portion = 0; portion < 2; ++portion) {
        store.together([&] {
            for (int i = 0; i < 10100; ++i)
                store.add(meeting("many"));
        });
        session.catch_up();
        EXPECT_EQ(session.changed_since(moment).has_value(), portion == 0);
    }
    EXPECT_TRUE(session.changed_since(session.moment()));
}

TEST_F(Sessions, FailOnceTheyAreClosed) {
    session.close();
    for (const auto& action : std::vector<std::function<void()>>{
             [&] { session.store(); }, [&] { session.activities(); }, [&] { session.catch_up(); },
             [&] { session.contacts(); }, [&] { session.group_name("G00000000001"); }}) {
        try {
            action();
            ADD_FAILURE();
        } catch (const values::Failure& failure) {
            EXPECT_EQ(failure.number(), 440);
        }
    }
}
