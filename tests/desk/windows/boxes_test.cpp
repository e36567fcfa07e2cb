#include "desk/windows/boxes.h"

#include "core/values/failure.h"
#include "desk_fixture.h"

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <stdexcept>

using namespace windows;

namespace {

std::function<void(QWidget&)> read_into(QString& text) {
    return [&text](QWidget& box) {
        text = box.findChild<QLabel*>("qt_msgbox_label")->text();
        QTest::keyClick(&box, Qt::Key_Return);
    };
}

} // namespace

TEST(Boxes, WorkThatGoesThroughShowsNothing) {
    bool is_done = false;
    with_dialogs({}, [&] { EXPECT_TRUE(attempt(nullptr, [&] { is_done = true; })); });
    EXPECT_TRUE(is_done);
}

TEST(Boxes, AFailureShowsItsSentence) {
    QString text;
    with_dialogs({read_into(text)}, [] {
        EXPECT_FALSE(attempt(nullptr, [] {
            throw values::Failure(values::FailureNumber::automation, "The file <b>x</b> is missing.");
        }));
    });
    EXPECT_EQ(text, "The file <b>x</b> is missing.");
}

TEST(Boxes, AnyOtherExceptionIsToldToo) {
    QString text;
    with_dialogs({read_into(text)},
                 [] { EXPECT_FALSE(attempt(nullptr, [] { throw std::runtime_error("disk on fire"); })); });
    EXPECT_EQ(text, "Something unexpected went wrong: disk on fire.");
}

TEST(Boxes, SentencesAreShownAsPlainText) {
    with_dialogs({[](QWidget& box) {
                     EXPECT_EQ(box.findChild<QLabel*>("qt_msgbox_label")->textFormat(), Qt::PlainText);
                     QTest::keyClick(&box, Qt::Key_Return);
                 }},
                 [] { attempt(nullptr, [] { throw std::runtime_error("<h1>"); }); });
}

TEST(Boxes, TellingShowsTheTextUnderItsTitle) {
    with_dialogs({[](QWidget& box) {
                     EXPECT_EQ(box.windowTitle(), "Import");
                     EXPECT_EQ(box.findChild<QLabel*>("qt_msgbox_label")->text(), "Took <i>3</i> contacts.");
                     EXPECT_EQ(box.findChild<QLabel*>("qt_msgbox_label")->textFormat(), Qt::PlainText);
                     QTest::keyClick(&box, Qt::Key_Return);
                 }},
                 [] { tell(nullptr, "Import", "Took <i>3</i> contacts."); });
}

TEST(Boxes, OnlyAYesConfirms) {
    const auto press = [](QMessageBox::StandardButton button) {
        return [button](QWidget& box) {
            QTest::mouseClick(dynamic_cast<QMessageBox&>(box).button(button), Qt::LeftButton);
        };
    };
    with_dialogs({press(QMessageBox::Yes)}, [] { EXPECT_TRUE(confirm(nullptr, "Delete", "Really?")); });
    with_dialogs({press(QMessageBox::No)}, [] { EXPECT_FALSE(confirm(nullptr, "Delete", "Really?")); });
    with_dialogs({[](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); }},
                 [] { EXPECT_FALSE(confirm(nullptr, "Delete", "Really?")); });
}
