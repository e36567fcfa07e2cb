#include "desk/store/imported_records.h"

#include "desk/store/sql.h"
#include "desk/store/sqlite_store.h"

namespace store {

namespace {

class SqliteImportedRecords final : public ImportedRecords {
public:
    SqliteImportedRecords(SqliteConnection& connection, Store& store) : connection_(connection), store_(store) {}

    std::vector<ImportedRecord> of(RecordKind kind, const std::string& user, const std::string& uid) override {
        std::vector<ImportedRecord> result;
        Rows rows = connection_.query(sql::imported_records, static_cast<int>(kind), user, uid);
        while (rows.step())
            result.push_back({.kind = kind,
                              .user = user,
                              .uid = uid,
                              .occurrence = rows.text(0),
                              .record = rows.text(1),
                              .told = rows.text(2),
                              .kept = rows.text(3)});
        return result;
    }

    void remember(const ImportedRecord& imported) override {
        store_.together([&] {
            forget(imported);
            connection_.run(sql::add_imported_record, static_cast<int>(imported.kind), imported.user, imported.uid,
                            imported.occurrence, imported.record, imported.told, imported.kept);
        });
    }

    void forget(const ImportedRecord& imported) override {
        store_.together([&] {
            connection_.run(sql::remove_imported_record, static_cast<int>(imported.kind), imported.user,
                            imported.uid, imported.occurrence);
        });
    }

private:
    SqliteConnection& connection_;
    Store& store_;
};

} // namespace

std::unique_ptr<ImportedRecords> make_imported_records(SqliteConnection& connection, Store& store) {
    return std::make_unique<SqliteImportedRecords>(connection, store);
}

} // namespace store
