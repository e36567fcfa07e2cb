#include "adapters/qt/qt_folders.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include "support/full_disk.h"

#include <unistd.h>
#endif

namespace {

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

constexpr auto readers =
    QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
constexpr auto everybody = readers | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;

// Folders that may be read only are read only for an ordinary user; the superuser steps down for as long.
class Folders : public ::testing::Test {
protected:
    void SetUp() override {
        shipped = place.filePath("shipped");
        own = place.filePath("own/Orvanta");
        QDir().mkpath(shipped);
        QDir().mkpath(place.filePath("own"));
        ASSERT_TRUE(QFile::setPermissions(place.path(), everybody));
        QFile::setPermissions(place.filePath("own"), everybody);
        write(shipped + "/plus.gif", "plus");
        write(shipped + "/orvanta_manual.pdf", "manual");
        write(shipped + "/orvanta", "program");
    }
    void make_read_only() {
        QFile::setPermissions(shipped, readers);
#ifdef Q_OS_UNIX
        if (::geteuid() == 0)
            stepped_down = ::seteuid(65534) == 0;
#endif
    }
    void TearDown() override {
#ifdef Q_OS_UNIX
        EXPECT_TRUE(!stepped_down || ::seteuid(0) == 0);
#endif
        QFile::setPermissions(shipped, everybody);
    }
    std::string program_folder() {
        return qt::make_folders(shipped.toStdString(), own.toStdString())->program_folder();
    }

    QTemporaryDir place;
    QString shipped, own;
    bool stepped_down = false;
};

TEST_F(Folders, AreTheExecutablesWhereThatCanBeWritten) {
    EXPECT_EQ(program_folder(), shipped.toStdString());
    EXPECT_FALSE(QDir(own).exists());
    EXPECT_EQ(QDir(shipped).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

TEST_F(Folders, AreTheUsersOwnAndFilledWhereTheExecutablesCantBeWritten) {
    make_read_only();
    EXPECT_EQ(program_folder(), own.toStdString());
    EXPECT_EQ(content(own + "/plus.gif"), "plus");
    EXPECT_EQ(content(own + "/orvanta_manual.pdf"), "manual");
    EXPECT_FALSE(QFile::exists(own + "/orvanta"));
}

#ifdef Q_OS_UNIX
TEST_F(Folders, HoldNoPartOfAFileThatAFullDiskDidntTake) {
    write(shipped + "/orvanta_template.xlt", QByteArray(20'000, 'x').constData());
    make_read_only();
    {
        const support::FullDisk disk(5000);
        EXPECT_EQ(program_folder(), own.toStdString());
    }
    EXPECT_EQ(content(own + "/plus.gif"), "plus");
    EXPECT_FALSE(QFile::exists(own + "/orvanta_template.xlt"));
    EXPECT_EQ(program_folder(), own.toStdString());
    EXPECT_EQ(content(own + "/orvanta_template.xlt").size(), 20'000);
}
#endif

TEST_F(Folders, KeepAPictureThatTheUserReplaced) {
    make_read_only();
    program_folder();
    write(own + "/plus.gif", "mine");
    program_folder();
    EXPECT_EQ(content(own + "/plus.gif"), "mine");
}

} // namespace
