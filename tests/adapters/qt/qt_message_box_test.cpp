#include "adapters/qt/qt_message_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>

namespace {

using host::Answer;
using host::Buttons;
using host::Icon;

// Shows the message and does something with the box once it is open.
Answer show(const host::Message& message, const std::function<void(QMessageBox&)>& then) {
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        then(*box);
    });
    return qt::make_message_box()->show(message);
}

QPushButton* button(QMessageBox& box, const QString& caption) {
    for (QAbstractButton* candidate : box.buttons())
        if (candidate->text() == caption)
            return qobject_cast<QPushButton*>(candidate);
    return nullptr;
}

QStringList captions(QMessageBox& box) {
    QStringList result;
    for (QAbstractButton* candidate : box.buttons())
        result << candidate->text();
    result.sort();
    return result;
}

TEST(MessageBox, BreaksItsLinesAtCarriageReturns) {
    show({.text = "One\rTwo\r\rFour", .title = "Orvanta error"}, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), "One\nTwo\n\nFour");
        EXPECT_EQ(box.windowTitle(), "Orvanta error");
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        EXPECT_EQ(captions(box), QStringList{"OK"});
        button(box, "OK")->click();
    });
}

TEST(MessageBox, TakesNoTextForMarkup) {
    show({.text = "<b>bold</b>", .title = "Orvanta"}, [](QMessageBox& box) {
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        button(box, "OK")->click();
    });
}

TEST(MessageBox, GivesTheAnswerOfTheButtonThatWasPressed) {
    const host::Message question{
        .text = "Sure?", .title = "Orvanta", .icon = Icon::question, .buttons = Buttons::yes_no};
    EXPECT_EQ(show(question, [](QMessageBox& box) { button(box, "Yes")->click(); }), Answer::yes);
    EXPECT_EQ(show(question, [](QMessageBox& box) { button(box, "No")->click(); }), Answer::no);
    const host::Message offer{.text = "Go on?", .title = "Orvanta", .buttons = Buttons::ok_cancel};
    EXPECT_EQ(show(offer, [](QMessageBox& box) { button(box, "OK")->click(); }), Answer::ok);
    EXPECT_EQ(show(offer, [](QMessageBox& box) { button(box, "Cancel")->click(); }), Answer::cancel);
    const host::Message notice{.text = "Restart", .title = "Orvanta", .buttons = Buttons::cancel_try_continue};
    EXPECT_EQ(show(notice, [](QMessageBox& box) { button(box, "Cancel")->click(); }), Answer::cancel);
    EXPECT_EQ(show(notice, [](QMessageBox& box) { button(box, "Try Again")->click(); }), Answer::try_again);
    EXPECT_EQ(show(notice, [](QMessageBox& box) { button(box, "Continue")->click(); }), Answer::go_on);
}

TEST(MessageBox, CountsItsClosingAsItsLastButton) {
    const auto close = [](QMessageBox& box) { box.close(); };
    EXPECT_EQ(show({.text = "Sure?", .title = "Orvanta", .buttons = Buttons::yes_no}, close), Answer::no);
    EXPECT_EQ(show({.text = "Go on?", .title = "Orvanta", .buttons = Buttons::ok_cancel}, close), Answer::cancel);
    EXPECT_EQ(show({.text = "So it is.", .title = "Orvanta"}, close), Answer::ok);
}

TEST(MessageBox, AnswersEnterWithTheButtonThatIsTheDefault) {
    const auto press_enter = [](QMessageBox& box) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&box, &press);
    };
    EXPECT_EQ(show({.text = "Sure?", .title = "Orvanta", .buttons = Buttons::yes_no}, press_enter), Answer::yes);
    EXPECT_EQ(show({.text = "Sure?", .title = "Orvanta", .buttons = Buttons::yes_no, .second_is_default = true},
                   press_enter),
              Answer::no);
}

TEST(MessageBox, ShowsTheIconThatIsAskedFor) {
    const auto shown = [](Icon icon) {
        QMessageBox::Icon result = QMessageBox::NoIcon;
        show({.text = "Look", .title = "Orvanta", .icon = icon}, [&](QMessageBox& box) {
            result = box.icon();
            box.close();
        });
        return result;
    };
    EXPECT_EQ(shown(Icon::critical), QMessageBox::Critical);
    EXPECT_EQ(shown(Icon::exclamation), QMessageBox::Warning);
    EXPECT_EQ(shown(Icon::information), QMessageBox::Information);
    EXPECT_EQ(shown(Icon::question), QMessageBox::Question);
}

} // namespace
