#include "adapters/qt/qt_shell.h"

#include <QDesktopServices>
#include <QTemporaryFile>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

// Stands in for the desktop: notes what is opened.
class Desktop : public QObject {
    Q_OBJECT
public:
    Desktop() {
        for (const char* scheme : {"file", "https"})
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Desktop() override {
        for (const char* scheme : {"file", "https"})
            QDesktopServices::unsetUrlHandler(scheme);
    }
    Q_INVOKABLE void open(const QUrl& url) { opened << url; }
    QList<QUrl> opened;
};

TEST(Shell, OpensAFileWithWhateverTheDesktopHasForIt) {
    Desktop desktop;
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    EXPECT_TRUE(qt::make_shell()->open(file.fileName().toStdString()));
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl::fromLocalFile(file.fileName())});
}

TEST(Shell, OpensAPage) {
    Desktop desktop;
    EXPECT_TRUE(qt::make_shell()->open("https://orvanta.example/page.htm"));
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl("https://orvanta.example/page.htm")});
}

TEST(Shell, SaysThatAMissingFileCantBeOpened) {
    Desktop desktop;
    EXPECT_FALSE(qt::make_shell()->open("/nowhere/manual.pdf"));
    EXPECT_FALSE(qt::make_shell()->open(""));
    EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST(Shell, StartsACompanionBesideTheProgram) {
    EXPECT_TRUE(qt::make_shell()->start_companion("test_instance_holder"));
    EXPECT_FALSE(qt::make_shell()->start_companion("no_such_companion"));
}

TEST(Shell, TakesACompanionsNameForNoPath) {
    EXPECT_FALSE(qt::make_shell()->start_companion("../bin/test_instance_holder"));
    EXPECT_FALSE(qt::make_shell()->start_companion("/bin/true"));
}

} // namespace

#include "qt_shell_test.moc"
