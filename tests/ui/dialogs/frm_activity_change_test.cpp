#include "ui/dialogs/frm_activity_change.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace {

class FrmActivityChange : public ::testing::Test {
protected:
    // What the form answers after the user did that.
    int answer_to(const std::function<void()>& user) {
        int answer = -1;
        QTimer::singleShot(0, &form, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
            EXPECT_TRUE(form.isModal());
            user();
            EXPECT_FALSE(form.isVisible());
        });
        answer = static_cast<int>(form.ask());
        return answer;
    }
    QPushButton* cmdResponse(int index) {
        return form.findChild<QPushButton*>(QStringLiteral("cmdResponse_%1").arg(index));
    }
    void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    ui::frmActivityChange form{"Orvanta", nullptr};
};

TEST_F(FrmActivityChange, AsksWithItsThreeButtons) {
    EXPECT_EQ(form.windowTitle(), "Orvanta");
    EXPECT_EQ(form.findChild<QLabel*>()->text(),
              "This is a recurring activity. Change this instance or change all instances of this activity?");
    EXPECT_EQ(form.findChildren<QPushButton*>().size(), 3);
    EXPECT_EQ(cmdResponse(0)->text(), "Instance");
    EXPECT_EQ(cmdResponse(1)->text(), "All");
    EXPECT_EQ(cmdResponse(2)->text(), "Cancel");
}

TEST_F(FrmActivityChange, AnswersAClickWithTheIndexOfItsButton) {
    for (const int index : {0, 1, 2})
        EXPECT_EQ(answer_to([&] { QTest::mouseClick(cmdResponse(index), Qt::LeftButton); }), index);
}

TEST_F(FrmActivityChange, IsAnsweredByTheKeyboardAlone) {
    EXPECT_EQ(answer_to([&] { press(Qt::Key_Return); }), 0);
    EXPECT_EQ(answer_to([&] {
                  cmdResponse(0)->setFocus();
                  press(Qt::Key_Tab);
                  press(Qt::Key_Space);
              }),
              1);
    EXPECT_EQ(answer_to([&] {
                  cmdResponse(0)->setFocus();
                  press(Qt::Key_Right);
                  press(Qt::Key_Right);
                  press(Qt::Key_Return);
              }),
              2);
}

TEST_F(FrmActivityChange, TakesTheEscapeKeyForCancel) {
    EXPECT_EQ(answer_to([&] { press(Qt::Key_Escape); }), 2);
}

TEST_F(FrmActivityChange, TakesItsClosingForCancel) {
    EXPECT_EQ(answer_to([&] { form.close(); }), 2);
}

} // namespace
