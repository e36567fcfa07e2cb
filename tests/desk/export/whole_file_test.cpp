#include "desk/export/whole_file.h"

#include "core/values/failure.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>

namespace {

std::string failure_of(const std::string& path, const std::string& bytes) {
    try {
        exporting::write_whole_file(path, bytes);
    } catch (const values::Failure& failure) {
        return failure.description();
    }
    return "";
}

std::size_t files_in(const std::string& folder) {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator()));
}

// Files may grow to so many bytes alone, as though the disk were full then.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{.rlim_cur = bytes, .rlim_max = before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit before_{};
    void (*handler_)(int);
};

class WholeFile : public testing::Test {
protected:
    support::TemporaryFolder folder;
    std::string path = folder.file("plan.ics");
};

} // namespace

TEST_F(WholeFile, IsWrittenAndTakesTheOldOnesPlace) {
    exporting::write_whole_file(path, "old and longer");
    exporting::write_whole_file(path, "new");
    EXPECT_EQ(support::content_of(path), "new");
    EXPECT_EQ(files_in(folder.path()), 1u);
}

TEST_F(WholeFile, KeepsTheOldOnesRightsAndTheLinkToIt) {
    support::write_file(path, "old");
    ::chmod(path.c_str(), 0600);
    std::filesystem::create_symlink(path, folder.file("link.ics"));
    exporting::write_whole_file(folder.file("link.ics"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link.ics")));
    EXPECT_EQ(support::content_of(path), "new");
    EXPECT_EQ(std::filesystem::status(path).permissions(),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(WholeFile, IsTheOldOneWhenTheDiskIsFull) {
    support::write_file(path, "old");
    std::string told;
    {
        const FullDisk disk(100000);
        told = failure_of(path, std::string(1000000, 'x'));
    }
    EXPECT_EQ(told, "The file \"" + path + "\" can't be written: File too large. Nothing was changed.");
    EXPECT_EQ(support::content_of(path), "old");
    EXPECT_EQ(files_in(folder.path()), 1u);
}

TEST_F(WholeFile, IsNoneWhenTheDiskIsFullAndThereWasNone) {
    {
        const FullDisk disk(100000);
        EXPECT_NE(failure_of(path, std::string(1000000, 'x')), "");
    }
    EXPECT_EQ(files_in(folder.path()), 0u);
}

TEST_F(WholeFile, CantBeAFolderOrLieInNone) {
    EXPECT_NE(failure_of(folder.path(), "x").find("it isn't a plain file"), std::string::npos);
    EXPECT_NE(failure_of(folder.file("none/plan.ics"), "x").find("No such file or directory"), std::string::npos);
    EXPECT_NE(failure_of("/dev/full", "x").find("it isn't a plain file"), std::string::npos);
}
