#include "import_world.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using test_import::ImportWorld;

class DataFile : public testing::TestWithParam<std::string> {};

// A bug becomes a file of this folder, with what must come of it beside it.
TEST_P(DataFile, ImportsAsExpected) {
    const std::string file = test_import::data_folder() + GetParam() + ".expected";
    const std::string taken = ImportWorld().taken(GetParam());
    if (std::getenv("ORVANTA_WRITE_EXPECTED"))
        support::write_file(file, taken);
    EXPECT_EQ(taken, support::content_of(file));
}

INSTANTIATE_TEST_SUITE_P(Import, DataFile, testing::ValuesIn(test_import::data_files()), [](const auto& file) {
    std::string name = file.param;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
});

std::string calendar_of(const std::string& lines) {
    return "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nDTSTART:20240312T090000\r\n" + lines +
           "END:VEVENT\r\nEND:VCALENDAR\r\n";
}

template <typename Action>
std::string failure_of(const Action& action) {
    try {
        action();
    } catch (const values::Failure& failure) {
        return failure.description();
    }
    return "";
}

TEST(ImportFile, SchedulesForTheNamedUserWhateverTheCase) {
    ImportWorld world;
    importing::Options options = world.options();
    options.user = "tom whitfield";
    importing::import_bytes(world.store(), calendar_of(""), "file", options);
    const std::string user = world.store().activities({}).at(0).user;
    EXPECT_EQ(user, world.store().users().at(1).id);
}

TEST(ImportFile, NamesTheUsersWhenThereIsNoneOfThatName) {
    ImportWorld world;
    importing::Options options = world.options();
    options.user = "Nobody";
    EXPECT_EQ(failure_of([&] { importing::import_bytes(world.store(), calendar_of(""), "file", options); }),
              "There is no user \"Nobody\". The users are: Anna Keller, Tom Whitfield.");
    EXPECT_TRUE(world.store().activities({}).empty());
}

TEST(ImportFile, FailsForAFileThatIsMissingOrAFolder) {
    ImportWorld world;
    EXPECT_EQ(failure_of([&] { importing::import_file(world.store(), "/no/such.ics", world.options()); }),
              "There is no file \"/no/such.ics\".");
    EXPECT_EQ(failure_of([&] { importing::import_file(world.store(), "/", world.options()); }),
              "There is no file \"/\".");
}

TEST(ImportFile, RefusesAFileBeyondItsLimit) {
    ImportWorld world;
    support::TemporaryFolder folder;
    const std::string path = folder.file("large.ics");
    support::write_file(path, "");
    std::filesystem::resize_file(path, importing::largest_file + 1); // takes no room on the disk
    EXPECT_EQ(failure_of([&] { importing::import_file(world.store(), path, world.options()); }),
              "The file \"" + path +
                  "\" has 64 megabytes. Files of up to 64 can be imported; split it and import the parts.");
}

TEST(ImportFile, CutsLongTextsToSaneLengthsAndSaysSo) {
    ImportWorld world;
    const auto report = world.take(calendar_of("SUMMARY:" + std::string(100000, 's') +
                                               "\r\nDESCRIPTION:" + std::string(1000000, 'd') + "\r\n"));
    const store::Activity activity = world.store().activities({}).at(0);
    EXPECT_EQ(activity.regarding, std::string(255, 's'));
    EXPECT_EQ(activity.details, std::string(20000, 'd'));
    ASSERT_EQ(report.changed.size(), 2u);
    EXPECT_EQ(report.changed[0].text, "Its title was cut to 255 characters.");
    EXPECT_EQ(report.changed[1].text, "Its details were cut to 20000 characters.");
}

TEST(ImportFile, LeavesOutALineThatIsTooLongAndSaysSo) {
    ImportWorld world;
    std::string dates = "RDATE:20240401T090000";
    while (dates.size() < 300000)
        dates += ",20240401T090000";
    const auto report = world.take(calendar_of(dates + "\r\n"));
    EXPECT_EQ(report.activities, 1u);
    ASSERT_EQ(report.changed.size(), 1u);
    EXPECT_EQ(report.changed[0].text, "Line 4 is too long and was left out.");
}

TEST(ImportFile, TakesThousandDatesOfARuleThatHasMore) {
    ImportWorld world;
    const auto report = world.take(calendar_of("RRULE:FREQ=HOURLY;INTERVAL=5\r\n"));
    EXPECT_EQ(report.activities, 1000u);
    EXPECT_EQ(report.series, 0u);
    ASSERT_EQ(report.changed.size(), 1u);
    EXPECT_NE(report.changed[0].text.find("single activities (1000), no more"), std::string::npos);
}

TEST(ImportFile, TellsHowFarItIsAndTakesNothingWhenItIsCancelledAtAnyTime) {
    const std::string calendar =
        "BEGIN:VCALENDAR\nBEGIN:VEVENT\nDTSTART:20240312T090000\nATTENDEE:mailto:a@x.org\n"
        "RRULE:FREQ=HOURLY;COUNT=30\nEND:VEVENT\nEND:VCALENDAR\n";
    ImportWorld world;
    importing::Options options = world.options();
    std::vector<double> parts;
    const auto import = [&] { importing::import_bytes(world.store(), calendar, "file", options); };
    const auto give_up = [&] {
        import();
        throw std::runtime_error("undone");
    };
    options.progress = [&](double part) {
        parts.push_back(part);
        return true;
    };
    EXPECT_THROW(world.store().together(give_up), std::runtime_error);
    EXPECT_TRUE(std::ranges::is_sorted(parts));
    EXPECT_NEAR(parts.back(), 1, 1e-9);
    for (std::size_t last = 0; last < parts.size(); ++last) {
        std::size_t told = 0;
        options.progress = [&](double) { return told++ < last; };
        EXPECT_EQ(failure_of(import), "Nothing was taken from \"file\": the import was cancelled.");
        EXPECT_EQ(world.records(), "");
    }
}

TEST(ImportFile, TakesNothingWhenTheDatabaseFailsInTheMiddle) {
    ImportWorld world;
    std::string calendar = "BEGIN:VCALENDAR\r\n";
    for (int i = 0; i < 20; ++i)
        calendar += "BEGIN:VEVENT\r\nDTSTART:20240312T090000\r\nATTENDEE:mailto:a" + std::to_string(i) +
                    "@example.org\r\nEND:VEVENT\r\n";
    calendar += "END:VCALENDAR\r\n";
    EXPECT_THROW(world.store().together([&] {
        world.take(calendar);
        throw std::runtime_error("the disk is full");
    }),
                 std::runtime_error);
    EXPECT_EQ(world.records(), "");
}

} // namespace
