#include "desk/windows/sample_file.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

using windows::create_sample;

using SampleFile = DeskTest;

TEST_F(SampleFile, HoldsPeopleAndAppointmentsRoundTheDay) {
    create_sample(in_folder("sample.desk"), at(3, 6));
    auto store = store::Store::open(in_folder("sample.desk"));
    EXPECT_FALSE(store->users().empty());
    EXPECT_GE(store->contacts().size(), 20u);
    store::ActivityQuery week;
    week.from = at(3, 3);
    week.to = at(3, 10);
    EXPECT_FALSE(store->activities(week).empty());
}

TEST_F(SampleFile, DoesntTouchAFileThatIsThere) {
    EXPECT_THROW(create_sample(path, at(3, 6)), values::Failure);
    EXPECT_EQ(elsewhere()->contacts().size(), 4u);
}
