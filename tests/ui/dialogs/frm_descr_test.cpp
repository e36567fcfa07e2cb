#include "ui/dialogs/frm_descr.h"

#include "support/fake_window.h"
#include "support/platform_world.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class FrmDescr : public ::testing::Test, protected support::PlatformWorld {
protected:
    FrmDescr() {
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }
    void type(const char* text) { QTest::keyClicks(txtDescr, QString::fromUtf8(text)); }
    void click(const char* button) { QTest::mouseClick(form.findChild<QPushButton*>(button), Qt::LeftButton); }

    std::string sDescr = "before";
    support::FakeWindow window;
    const host::Platform here{machine(), window};
    ui::frmDescr form{here, sDescr, nullptr};
    QLineEdit* txtDescr = form.findChild<QLineEdit*>("txtDescr");
};

TEST_F(FrmDescr, HandsItsTextOver) {
    EXPECT_EQ(form.windowTitle(), "Holiday Description");
    EXPECT_TRUE(txtDescr->hasFocus());
    type("May Day = Labour Day");
    click("cmdOK");
    EXPECT_EQ(sDescr, "May Day = Labour Day");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(shell.beeps, 0);
}

TEST_F(FrmDescr, TakesTheReturnKeyForOK) {
    type("May Day");
    QTest::keyClick(txtDescr, Qt::Key_Return);
    EXPECT_EQ(sDescr, "May Day");
    EXPECT_FALSE(form.isVisible());
}

TEST_F(FrmDescr, BeepsAndStaysOpenWithoutAText) {
    click("cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(shell.beeps, 1);
    EXPECT_TRUE(txtDescr->hasFocus());
    EXPECT_EQ(sDescr, "before");
}

TEST_F(FrmDescr, LeavesTheTextAsItWasWhenItIsCancelled) {
    type("May Day");
    click("cmdCancel");
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(sDescr, "before");
    form.show();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(sDescr, "before");
}

} // namespace
