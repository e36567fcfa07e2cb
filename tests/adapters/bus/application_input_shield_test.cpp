#include "adapters/bus/application_input_shield.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

namespace {

class InputShield : public ::testing::Test {
protected:
    InputShield() {
        edit.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&edit));
    }
    QLineEdit edit;
};

TEST_F(InputShield, ThrowsKeysAway) {
    {
        const bus::InputShield shield;
        QTest::keyClick(edit.windowHandle(), Qt::Key_A);
        QTest::keyClicks(&edit, "bc");
    }
    EXPECT_EQ(edit.text(), "");
}

TEST_F(InputShield, LetsKeysThroughAfterItsEnd) {
    { const bus::InputShield shield; }
    QTest::keyClicks(&edit, "abc");
    EXPECT_EQ(edit.text(), "abc");
}

TEST_F(InputShield, KeepsTheUserFromClosingAWindow) {
    {
        const bus::InputShield shield;
        QCloseEvent close;
        QSpontaneKeyEvent::setSpontaneous(&close); // as the window system's own
        qApp->notify(edit.windowHandle(), &close);
    }
    EXPECT_TRUE(edit.isVisible());
}

TEST_F(InputShield, LetsTheProgramCloseWhatPopsUp) {
    QWidget popup(&edit, Qt::ToolTip);
    popup.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&popup));
    const bus::InputShield shield;
    EXPECT_TRUE(popup.close());
}

} // namespace
