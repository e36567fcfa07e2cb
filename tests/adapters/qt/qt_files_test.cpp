#include "adapters/qt/qt_files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include "support/full_disk.h"
#include "support/unprivileged.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace {

constexpr std::size_t plenty = 1000;

class Files : public ::testing::Test {
protected:
    std::string path(const char* name) { return place.filePath(name).toStdString(); }
    std::string bytes(const std::string& file) {
        const auto content = files->read(file, plenty);
        return content ? content->bytes : "absent";
    }

    QTemporaryDir place;
    std::unique_ptr<host::Files> files = qt::make_files();
};

TEST_F(Files, GiveBackWhatWasWritten) {
    ASSERT_TRUE(files->replace(path("a.ini"), std::string("[S]\r\nk=\0v", 9)));
    EXPECT_EQ(bytes(path("a.ini")), std::string("[S]\r\nk=\0v", 9));
    EXPECT_TRUE(files->exists(path("a.ini")));
    EXPECT_TRUE(files->exists(place.path().toStdString()));
}

TEST_F(Files, AreAbsentWhenThereIsNoneOrItIsAFolder) {
    EXPECT_FALSE(files->exists(path("none")));
    EXPECT_FALSE(files->stamp(path("none")));
    EXPECT_FALSE(files->read(path("none"), plenty));
    QDir(place.path()).mkdir("folder");
    EXPECT_TRUE(files->exists(path("folder")));
    EXPECT_FALSE(files->stamp(path("folder")));
    EXPECT_FALSE(files->read(path("folder"), plenty));
    EXPECT_FALSE(files->replace(path("folder"), "x"));
}

TEST_F(Files, AreNotReadBeyondTheMostThatIsWanted) {
    ASSERT_TRUE(files->replace(path("a"), "1234"));
    EXPECT_TRUE(files->read(path("a"), 4));
    EXPECT_FALSE(files->read(path("a"), 3));
}

TEST_F(Files, GetANewStampWithEveryChange) {
    ASSERT_TRUE(files->replace(path("a"), "one"));
    const auto first = files->stamp(path("a"));
    ASSERT_TRUE(first);
    EXPECT_EQ(files->stamp(path("a")), first);
    EXPECT_EQ(files->read(path("a"), plenty)->stamp, *first);
    ASSERT_TRUE(files->replace(path("a"), "two"));
    EXPECT_NE(files->stamp(path("a")), first);
}

TEST_F(Files, AreSettledOnceTheirLastChangeLiesBack) {
    ASSERT_TRUE(files->replace(path("a"), "one"));
    QFile file(place.filePath("a"));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime(QDate(2024, 1, 5), QTime(9, 0)), QFile::FileModificationTime));
    EXPECT_TRUE(files->read(path("a"), plenty)->settled);
    ASSERT_TRUE(file.setFileTime(QDateTime(QDate(2224, 1, 5), QTime(9, 0)), QFile::FileModificationTime));
    EXPECT_FALSE(files->read(path("a"), plenty)->settled);
}

TEST_F(Files, AreNotMadeInAFolderThatIsMissing) {
    EXPECT_FALSE(files->replace(path("missing/a"), "x"));
    EXPECT_FALSE(files->exists(path("missing")));
    EXPECT_EQ(files->lock(path("missing/a")), nullptr);
}

TEST_F(Files, AreLeftAloneWhenReadOnly) {
    ASSERT_TRUE(files->replace(path("a"), "old"));
    QFile::setPermissions(place.filePath("a"), QFile::ReadOwner | QFile::ReadUser);
    EXPECT_FALSE(files->replace(path("a"), "new"));
    EXPECT_EQ(bytes(path("a")), "old");
}

TEST_F(Files, KeepTheirPermissionsAndLinksWhenReplaced) {
    ASSERT_TRUE(files->replace(path("a"), "old"));
    const auto owner_only = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QFile::setPermissions(place.filePath("a"), owner_only);
    ASSERT_TRUE(QFile::link(place.filePath("a"), place.filePath("b")));
    ASSERT_TRUE(QFile::link(place.filePath("b"), place.filePath("c")));
    ASSERT_TRUE(files->replace(path("c"), "new"));
    EXPECT_TRUE(QFileInfo(place.filePath("c")).isSymLink());
    EXPECT_TRUE(QFileInfo(place.filePath("b")).isSymLink());
    EXPECT_EQ(bytes(path("a")), "new");
    EXPECT_EQ(QFile::permissions(place.filePath("a")), owner_only);
}

TEST_F(Files, LeaveNothingButThemselvesBehind) {
    ASSERT_TRUE(files->replace(path("a"), "x"));
    ASSERT_NE(files->lock(path("a")), nullptr);
    EXPECT_EQ(QDir(place.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"a"});
}

TEST_F(Files, AreLockedByOneProcessAfterTheOther) {
    constexpr int processes = 4, rounds = 25;
    ASSERT_TRUE(files->replace(path("count"), "0"));
    std::vector<std::unique_ptr<QProcess>> others;
    for (int i = 0; i < processes; ++i) {
        others.push_back(std::make_unique<QProcess>());
        others.back()->start(QCoreApplication::applicationDirPath() + "/test_counter",
                             {place.filePath("count"), QString::number(rounds)});
    }
    for (const auto& other : others) {
        ASSERT_TRUE(other->waitForFinished());
        EXPECT_EQ(other->exitCode(), 0);
    }
    EXPECT_EQ(bytes(path("count")), std::to_string(processes * rounds));
    EXPECT_EQ(QDir(place.path()).entryList(QDir::Files), QStringList{"count"});
}

TEST_F(Files, CanBeLockedAfterAProcessDiedWithTheLock) {
    QProcess other;
    other.start(QCoreApplication::applicationDirPath() + "/test_counter", {place.filePath("a"), "hold"});
    ASSERT_TRUE(other.waitForReadyRead());
    ASSERT_EQ(other.readLine().trimmed(), "locked");
    other.kill();
    ASSERT_TRUE(other.waitForFinished());
    EXPECT_NE(files->lock(path("a")), nullptr);
}

#ifdef Q_OS_UNIX
TEST_F(Files, AreAbsentAndUnchangedWhileAnotherProgramHasThemLocked) {
    ASSERT_TRUE(files->replace(path("a"), "old"));
    const int other = ::open(path("a").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(::flock(other, LOCK_EX), 0);
    EXPECT_FALSE(files->stamp(path("a")));
    EXPECT_FALSE(files->read(path("a"), plenty));
    EXPECT_FALSE(files->replace(path("a"), "new"));
    ::close(other);
    EXPECT_EQ(bytes(path("a")), "old");
}

TEST_F(Files, StayAsTheyWereOnAFullDisk) {
    const std::string old = "[Settings]\r\n1stday=2\r\n";
    ASSERT_TRUE(files->replace(path("a"), old));
    {
        const support::FullDisk disk;
        EXPECT_FALSE(files->replace(path("a"), "short"));
        EXPECT_FALSE(files->replace(path("a"), std::string(100'000, 'x')));
        EXPECT_FALSE(files->replace(path("b"), "new"));
    }
    EXPECT_EQ(bytes(path("a")), old);
    EXPECT_EQ(QDir(place.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"a"});
}

// A folder in which others may change files but make none.
class ClosedFolder : public Files {
protected:
    ClosedFolder() {
        EXPECT_TRUE(files->replace(path("a"), "0123456789"));
        QFile::setPermissions(place.filePath("a"), QFile::Permissions(0x6666));
        QFile::setPermissions(place.path(), QFile::Permissions(0x5555));
    }
    ~ClosedFolder() override { QFile::setPermissions(place.path(), QFile::Permissions(0x7777)); }
};

TEST_F(ClosedFolder, HasItsFilesWrittenInPlace) {
    const support::Unprivileged nobody;
    for (const char* content : {"short", "longer than before", "", "0123456789"}) {
        EXPECT_TRUE(files->replace(path("a"), content));
        EXPECT_EQ(bytes(path("a")), content);
    }
    EXPECT_FALSE(files->replace(path("b"), "new"));
}

TEST_F(ClosedFolder, LeavesAFileAsItWasOnAFullDisk) {
    const support::Unprivileged nobody;
    const support::FullDisk disk(12);
    EXPECT_FALSE(files->replace(path("a"), "longer than before"));
    EXPECT_EQ(bytes(path("a")), "0123456789");
}

TEST_F(ClosedFolder, HasItsFilesLockedAllTheSame) {
    const support::Unprivileged nobody;
    auto lock = files->lock(path("a"));
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(bytes(path("a")), "0123456789");
    EXPECT_TRUE(files->replace(path("a"), "new"));
    EXPECT_EQ(qt::make_files()->lock(path("a")), nullptr);
    lock.reset();
    EXPECT_NE(files->lock(path("a")), nullptr);
    EXPECT_EQ(files->lock(path("b")), nullptr);
}
#endif

} // namespace
