#include "adapters/qt/qt_user_store.h"

#include "adapters/qt/qt_files.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// The user's configuration folder is another one for as long.
class UserStore : public ::testing::Test {
protected:
    UserStore() { qputenv("XDG_CONFIG_HOME", place.filePath("config").toUtf8()); }
    ~UserStore() override { before.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", before); }

    QByteArray before = qgetenv("XDG_CONFIG_HOME");
    QTemporaryDir place;
    std::unique_ptr<host::Files> files = qt::make_files();
};

TEST_F(UserStore, LiesInTheUsersConfigurationFolder) {
    EXPECT_EQ(qt::user_store_path(), place.filePath("config/Orvanta/user-store.ini").toStdString());
}

TEST_F(UserStore, MakesItsFolderAndFileAtTheFirstWrite) {
    const auto store = qt::make_user_store(*files);
    EXPECT_TRUE(store->write("Orvanta\\Settings", "WeeklyView", "1"));
    EXPECT_TRUE(QFile::exists(QString::fromStdString(qt::user_store_path())));
}

TEST_F(UserStore, GivesAnotherProcessesStoreWhatWasLastWritten) {
    const auto mine = qt::make_user_store(*files);
    const auto other_files = qt::make_files();
    const auto others = qt::make_user_store(*other_files);
    for (const char* value : {"1", "2", "3"}) {
        ASSERT_TRUE(mine->write("Orvanta\\Exporting", "Progress", value));
        EXPECT_EQ(others->read("Orvanta\\Exporting", "Progress"), value);
    }
}

} // namespace
