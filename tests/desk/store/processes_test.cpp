#include "core/values/failure.h"
#include "desk/store/child_process.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <set>

using store::Activity;
using store::Store;
using support::ChildProcess;
using support::TemporaryDatabase;
using values::DateTime;

namespace {

Activity numbered(int number) {
    Activity activity;
    activity.regarding = std::to_string(number);
    activity.start = DateTime::of(2024, 3, 11).plus_minutes(number);
    return activity;
}

// Those of the 200 records that it adds first.
std::string first_ids_of(ChildProcess& writer) {
    std::string ids;
    while (ids.size() < 200 * 12) {
        const std::string part = writer.read();
        if (part.empty()) {
            ADD_FAILURE() << "The writer has ended: " << ids;
            break;
        }
        ids += part;
    }
    return ids;
}

DateTime any_moment() { return DateTime::of(2024, 3, 11, 9); }

} // namespace

TEST(Processes, LoseNothingWhenTwoWriteTenThousandActivitiesAtTheSameTime) {
    TemporaryDatabase database;
    database.close();
    const auto write = [path = database.path()](int first) {
        const auto store = Store::open(path, any_moment);
        for (int i = first; i < first + 5000; i += 20) {
            for (int j = 0; j < 10; ++j)
                store->add(numbered(i + j));
            store->together([&] {
                for (int j = 10; j < 20; ++j)
                    store->add(numbered(i + j));
            });
        }
    };
    ChildProcess other([&](ChildProcess::Report) { write(5000); });
    write(0);
    EXPECT_EQ(other.wait(), 0);

    std::set<std::string> ids, names;
    std::set<std::int64_t> revisions;
    for (const Activity& activity : database.open_again()->activities({})) {
        ids.insert(activity.id);
        names.insert(activity.regarding);
        revisions.insert(activity.revision);
    }
    EXPECT_EQ(ids.size(), 10000u);
    EXPECT_EQ(names.size(), 10000u);
    EXPECT_EQ(revisions.size(), 10000u);
}

TEST(Processes, KeepEveryActivityOfAWriterThatWasKilled) {
    TemporaryDatabase database;
    database.close();
    ChildProcess writer([&](ChildProcess::Report report) {
        const auto store = Store::open(database.path(), any_moment);
        for (int i = 0;; ++i)
            report(store->add(numbered(i)));
    });
    std::string reported = first_ids_of(writer);
    writer.kill();
    for (std::string rest = writer.read(); !rest.empty(); rest = writer.read())
        reported += rest;

    const auto store = database.open_again();
    for (std::size_t i = 0; i < reported.size(); i += 12)
        EXPECT_TRUE(store->activity(reported.substr(i, 12))) << i;
    store->add(numbered(-1));
    const std::size_t stored = store->activities({}).size();
    EXPECT_GE(stored, reported.size() / 12 + 1);
    EXPECT_LE(stored, reported.size() / 12 + 2); // one may have been stored but not yet reported
}

TEST(Processes, StoreNothingOfABlockWhoseWriterWasKilled) {
    TemporaryDatabase database;
    database.close();
    ChildProcess writer([&](ChildProcess::Report report) {
        const auto store = Store::open(database.path(), any_moment);
        store->together([&] {
            for (int i = 0;; ++i)
                report(store->add(numbered(i)));
        });
    });
    std::string reported = first_ids_of(writer);
    writer.kill();
    EXPECT_TRUE(database.open_again()->activities({}).empty());
}

TEST(Processes, ReadAFileThatTheyMayNotWriteAndSayWhyWhenTheyTry) {
    for (const bool folder_can_be_written : {true, false}) {
        TemporaryDatabase database;
        const std::string id = database.store().add(numbered(1));
        database.close();
        const std::string folder = database.path().substr(0, database.path().rfind('/'));
        ::chmod(database.path().c_str(), 0444);
        ::chmod(folder.c_str(), folder_can_be_written ? 0777 : 0555);
        ChildProcess reader([&](ChildProcess::Report report) {
            // The file's owner and root could write it all the same.
            if (::getuid() == 0 && ::setuid(65534) != 0)
                report("can't become nobody");
            const auto store = Store::open(database.path(), any_moment);
            report(store->is_read_only() ? "read-only, " : "writable, ");
            report(store->activity(id)->regarding + ", ");
            try {
                store->add(numbered(2));
                report("written");
            } catch (const values::Failure& failure) {
                report(std::to_string(failure.number()) + ": " + failure.description());
            }
        });
        EXPECT_EQ(reader.wait(), 0);
        EXPECT_EQ(reader.read_all(), "read-only, 1, 440: The database \"" + database.path() +
                                         "\" can't be written: it is open for reading only.");
        ::chmod(folder.c_str(), 0700);
    }
}
