#include "desk/store/imported_records.h"

#include "support/temporary_database.h"

#include <gtest/gtest.h>

using store::ImportedRecord;
using store::RecordKind;

namespace {

class ImportedRecords : public testing::Test {
protected:
    static ImportedRecord moved() {
        return {.kind = RecordKind::activity,
                .user = "U00000000001",
                .uid = "round@example.org",
                .occurrence = "20240312",
                .record = "A00000000007",
                .told = "t1",
                .kept = "k1"};
    }

    support::TemporaryDatabase database;
    store::ImportedRecords& records = database.store().imported_records();
};

} // namespace

TEST_F(ImportedRecords, AreFoundByKindUserAndName) {
    ImportedRecord main = moved();
    main.occurrence = "";
    records.remember(moved());
    records.remember(main);
    EXPECT_EQ(records.of(RecordKind::activity, "U00000000001", "round@example.org"),
              (std::vector<ImportedRecord>{main, moved()}));
    EXPECT_TRUE(records.of(RecordKind::contact, "U00000000001", "round@example.org").empty());
    EXPECT_TRUE(records.of(RecordKind::activity, "U00000000002", "round@example.org").empty());
    EXPECT_TRUE(records.of(RecordKind::activity, "U00000000001", "other@example.org").empty());
}

TEST_F(ImportedRecords, StandOnceUnderTheSameName) {
    records.remember(moved());
    ImportedRecord newer = moved();
    newer.told = "t2";
    newer.record = "A00000000008";
    records.remember(newer);
    EXPECT_EQ(records.of(RecordKind::activity, "U00000000001", "round@example.org"),
              std::vector<ImportedRecord>{newer});
}

TEST_F(ImportedRecords, AreForgotten) {
    records.forget(moved());
    records.remember(moved());
    records.forget(moved());
    EXPECT_TRUE(records.of(RecordKind::activity, "U00000000001", "round@example.org").empty());
}

TEST_F(ImportedRecords, AreThereForTheNextProcess) {
    records.remember(moved());
    database.close();
    EXPECT_EQ(
        database.open_again()->imported_records().of(RecordKind::activity, "U00000000001", "round@example.org"),
        std::vector<ImportedRecord>{moved()});
}
