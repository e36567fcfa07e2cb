// Several threads and processes at one store and one settings file.

#include "core/settings/file_user_store.h"
#include "support/plain_files.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <thread>

#if __has_include(<unistd.h>)
#include <sys/wait.h>
#include <unistd.h>
#endif

using settings::FileUserStore;

namespace {

constexpr int writers = 4;
constexpr int values_each = 20;

// Each writer uses the store as a process of its own would.
bool write_all(const std::string& path, int writer) {
    support::PlainFiles files;
    FileUserStore store(files, path);
    bool written = true;
    for (int i = 0; i < values_each; ++i)
        written = store.write("branch", std::to_string(writer) + "-" + std::to_string(i), "value") && written;
    return written;
}

void expect_all(const std::string& path) {
    support::PlainFiles files;
    const FileUserStore store(files, path);
    EXPECT_EQ(store.list("branch").size(), static_cast<std::size_t>(writers * values_each));
    for (int writer = 0; writer < writers; ++writer)
        for (int i = 0; i < values_each; ++i)
            EXPECT_TRUE(store.read("branch", std::to_string(writer) + "-" + std::to_string(i)));
}

} // namespace

TEST(FileUserStoreOfSeveralThreads, LosesNothing) {
    const support::TemporaryFolder folder;
    const std::string path = folder.file("per-user.txt");
    std::array<bool, writers> written{};
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer)
        threads.emplace_back(
            [&, writer] { written.at(static_cast<std::size_t>(writer)) = write_all(path, writer); });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(written, (std::array<bool, writers>{true, true, true, true}));
    expect_all(path);
    EXPECT_EQ(folder.count(), 1);
}

#if __has_include(<unistd.h>)

TEST(FileUserStoreOfSeveralProcesses, LosesNothing) {
    const support::TemporaryFolder folder;
    const std::string path = folder.file("per-user.txt");
    std::vector<pid_t> children;
    for (int writer = 0; writer < writers; ++writer) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0)
            ::_exit(write_all(path, writer) ? 0 : 1);
        children.push_back(child);
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    expect_all(path);
    EXPECT_EQ(folder.count(), 1);
}

TEST(FileUserStoreOfAKilledProcess, IsTheOldOrTheNewOne) {
    const support::TemporaryFolder folder;
    const std::string path = folder.file("per-user.txt");
    const std::string large(200'000, 'x');
    support::PlainFiles files;
    ASSERT_TRUE(FileUserStore(files, path).write("branch", "name", large + "0"));
    for (int round = 0; round < 20; ++round) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int i = 0; i < 1000; ++i)
                files.replace(path, "[branch]\nname=" + large + std::to_string(i) + "\n");
            ::_exit(0);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(500 + 731 * round));
        ::kill(child, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        const auto value = FileUserStore(files, path).read("branch", "name");
        ASSERT_TRUE(value);
        EXPECT_EQ(value->substr(0, large.size()), large);
    }
}

#endif
