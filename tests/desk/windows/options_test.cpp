#include "apps/contact_desk/options.h"

#include <gtest/gtest.h>

using namespace apps;

namespace {

Task task(const std::vector<std::string>& arguments) { return task_of(arguments); }

std::string complaint(const std::vector<std::string>& arguments) {
    try {
        task_of(arguments);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

} // namespace

TEST(Options, WithoutAnyTheWindowOpens) {
    EXPECT_EQ(task({}), Task(ShowWindow{}));
    EXPECT_EQ(task({"team.desk"}), Task(ShowWindow{"team.desk"}));
}

TEST(Options, ASampleIsMadeAtTheFile) { EXPECT_EQ(task({"--new-sample", "s.desk"}), Task(NewSample{"s.desk"})); }

TEST(Options, AnImportTakesAFileAndADatabaseInAnyOrder) {
    EXPECT_EQ(task({"--import", "a.ics", "team.desk"}), Task(ImportFile{"a.ics", "", "team.desk"}));
    EXPECT_EQ(task({"team.desk", "--user", "Anna Berg", "--import", "a.ics"}),
              Task(ImportFile{"a.ics", "Anna Berg", "team.desk"}));
}

TEST(Options, AnImportMayBringBackWhatWasDeleted) {
    EXPECT_EQ(task({"--import", "a.ics", "--with-deleted", "team.desk"}),
              Task(ImportFile{"a.ics", "", "team.desk", true}));
}

TEST(Options, AnExportTakesAFileAndADatabase) {
    EXPECT_EQ(task({"--export", "a.ics", "team.desk"}), Task(ExportFile{"a.ics", "", "team.desk"}));
    EXPECT_EQ(task({"team.desk", "--user", "Anna Berg", "--export", "a.ics"}),
              Task(ExportFile{"a.ics", "Anna Berg", "team.desk"}));
}

TEST(Options, HelpAndVersionComeBeforeEverythingElse) {
    EXPECT_EQ(task({"--new-sample", "s.desk", "--help"}), Task(ShowHelp{}));
    EXPECT_EQ(task({"-h"}), Task(ShowHelp{}));
    EXPECT_EQ(task({"--version"}), Task(ShowVersion{}));
}

TEST(Options, BehindTwoDashesEverythingIsAFile) { EXPECT_EQ(task({"--", "--help"}), Task(ShowWindow{"--help"})); }

TEST(Options, AnUnknownOptionIsNamed) { EXPECT_EQ(complaint({"--nope"}), "There is no option --nope."); }

TEST(Options, AnOptionNeedsItsValueAndHasItOnce) {
    EXPECT_EQ(complaint({"--new-sample"}), "--new-sample needs a value.");
    EXPECT_EQ(complaint({"--new-sample", ""}), "--new-sample needs a value.");
    EXPECT_EQ(complaint({"team.desk", "--import"}), "--import needs a value.");
    EXPECT_EQ(complaint({"--user", "A", "--user", "B", "--import", "a.ics", "team.desk"}),
              "--user is given twice.");
}

TEST(Options, WhatDoesntGoTogetherIsRefused) {
    EXPECT_EQ(complaint({"--new-sample", "s.desk", "--import", "a.ics", "team.desk"}),
              "Of --new-sample, --import and --export one can be given.");
    EXPECT_EQ(complaint({"--export", "a.ics", "--import", "a.ics", "team.desk"}),
              "Of --new-sample, --import and --export one can be given.");
    EXPECT_EQ(complaint({"--user", "Anna", "team.desk"}), "--user belongs to --import or --export.");
    EXPECT_EQ(complaint({"--with-deleted", "--export", "a.ics", "team.desk"}),
              "--with-deleted belongs to --import.");
    EXPECT_EQ(complaint({"--export", "a.ics"}), "--export needs the file and then one database.");
    EXPECT_EQ(complaint({"--new-sample", "s.desk", "other.desk"}), "--new-sample takes one file.");
    EXPECT_EQ(complaint({"a.desk", "b.desk"}), "One database can be opened at a time.");
    EXPECT_EQ(complaint({"--import", "a.ics"}), "--import needs the file and then one database.");
    EXPECT_EQ(complaint({"--import", "a.ics", "x.desk", "y.desk"}),
              "--import needs the file and then one database.");
    EXPECT_EQ(complaint({""}), "A file name is empty.");
}

TEST(Options, TheHelpNamesEveryOption) {
    for (const char* option :
         {"--new-sample", "--import", "--export", "--user", "--with-deleted", "--help", "--version"})
        EXPECT_NE(usage().find(option), std::string::npos) << option;
}
