#include "desk/store/sql.h"

#include "desk/store/contact_fields.h"
#include "desk/store/sqlite_connection.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <algorithm>

using store::SqliteConnection;
namespace sql = store::sql;

namespace {

// How the engine goes about a statement. The parameters don't matter for that.
std::string plan_of(std::string_view statement) {
    const support::TemporaryDatabase database;
    SqliteConnection connection(database.path(), SqliteConnection::Mode::read_write);
    store::Rows rows = connection.query("EXPLAIN QUERY PLAN " + std::string(statement));
    std::string plan;
    while (rows.step())
        plan += rows.text(3) + "\n";
    return plan;
}

} // namespace

TEST(Sql, ReadsAllEntriesFromAnIndexInOrder) {
    EXPECT_EQ(plan_of(sql::entries()), "SCAN activities USING COVERING INDEX activities_in_order\n");
}

TEST(Sql, ReadsTheSeriesThatAreNotOverFromTheirIndexAlone) {
    EXPECT_EQ(plan_of(sql::ending_series()),
              "SEARCH activities USING COVERING INDEX activities_recurring (until>?)\n");
    EXPECT_EQ(plan_of(sql::endless_series()),
              "SEARCH activities USING COVERING INDEX activities_recurring (until=? AND starts_at<?)\n");
}

TEST(Sql, FindsWhatWasEditedByAnIndex) {
    EXPECT_NE(plan_of(sql::edited_entries()).find("SEARCH activities USING INDEX activities_edited (edited_at>?)"),
              std::string::npos);
    EXPECT_EQ(plan_of(sql::foreign_ids).find("SCAN activities"), std::string::npos);
}

TEST(Sql, FindsAScopeInTheIndexOfStarts) {
    EXPECT_EQ(plan_of(sql::rows_in_scope()),
              "SEARCH activities USING INDEX activities_in_order (starts_at>? AND starts_at<?)\n");
    store::ActivityQuery scope;
    scope.from = scope.to = values::DateTime::of(2024, 3, 11);
    EXPECT_EQ(plan_of(sql::activities(scope)),
              "SEARCH activities USING INDEX activities_in_order (starts_at>? AND starts_at<?)\n");
}

TEST(Sql, FindsTheRowsBehindAPlaceInTheIndexOfStarts) {
    EXPECT_EQ(plan_of(sql::rows_from()),
              "SEARCH activities USING INDEX activities_in_order ((starts_at,id)>(?,?))\n");
}

TEST(Sql, FindsWhatChangedByIndexes) {
    EXPECT_NE(plan_of(sql::changed_rows()).find("SEARCH activities USING INDEX activities_changed"),
              std::string::npos);
    EXPECT_NE(plan_of(sql::removed_activities).find("SEARCH removed_activities USING"), std::string::npos);
    EXPECT_NE(plan_of(sql::changed_contacts).find("SEARCH contacts USING"), std::string::npos);
}

TEST(Sql, FindsTheActivitiesOfAContactByIndexes) {
    const std::string plan = plan_of(sql::activities({.contact = "C00000000001"}));
    EXPECT_EQ(plan.find("SCAN"), std::string::npos) << plan;
}

TEST(Sql, HasAColumnForEachContactField) {
    const std::string_view statement = sql::add_contact();
    EXPECT_EQ(std::count(statement.begin(), statement.end(), '?'),
              static_cast<std::ptrdiff_t>(store::contact_fields().size()) + 2);
}
