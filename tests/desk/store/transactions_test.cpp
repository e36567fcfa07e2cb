#include "desk/store/transactions.h"

#include "desk/store/expect_failure.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <limits>

using store::SqliteConnection;
using support::store_failure;

namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto most = std::numeric_limits<std::int64_t>::max();

void set_counter(const std::string& path, const std::string& name, std::int64_t value) {
    SqliteConnection(path, SqliteConnection::Mode::read_write)
        .run("UPDATE counters SET value = ? WHERE name = ?", value, name);
}

} // namespace

TEST(Counters, OutsideTheirNumbersEndInASentenceAndStoreNothing) {
    for (const char* name : {"revision", "activities", "contacts"})
        for (const std::int64_t value : {most, std::int64_t{-5}, least}) {
            support::TemporaryDatabase database;
            set_counter(database.path(), name, value);
            const std::string sentence = store_failure([&] {
                database.store().together([&] {
                    database.store().add(store::Contact{});
                    database.store().add(store::Activity{});
                });
            });
            EXPECT_NE(sentence.find(std::string("can't take any more: its counter of ") + name), std::string::npos)
                << sentence;
            EXPECT_TRUE(database.store().contacts().empty());
        }
}

TEST(Counters, OfIdsEndWithElevenDigits) {
    support::TemporaryDatabase database;
    set_counter(database.path(), "activities", 99'999'999'998);
    EXPECT_EQ(database.store().add(store::Activity{}), "A99999999999");
    EXPECT_NE(store_failure([&] { database.store().add(store::Activity{}); }), "");
}
