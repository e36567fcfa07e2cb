#include "desk/windows/colour_box.h"

#include "desk_fixture.h"

#include <QColorDialog>

using windows::ColourBox;

TEST(ColourBox, HasNoColourAtFirst) {
    ColourBox box;
    EXPECT_EQ(box.colour(), std::nullopt);
    EXPECT_EQ(box.currentText(), "None");
}

TEST(ColourBox, AColourIsTakenFromTheListByTheKeyboard) {
    ColourBox box;
    box.show();
    QTest::keyClick(&box, Qt::Key_Down);
    QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.currentText(), "Red");
    EXPECT_EQ(box.colour(), 0x0000ffu);
    QTest::keyClick(&box, Qt::Key_Home);
    EXPECT_EQ(box.colour(), std::nullopt);
}

TEST(ColourBox, AColourThatIsNotInTheListJoinsIt) {
    ColourBox box;
    box.set_colour(0x123456u);
    EXPECT_EQ(box.colour(), 0x123456u);
    EXPECT_EQ(box.currentText(), "#563412");
    const int count = box.count();
    box.set_colour(0x123456u);
    EXPECT_EQ(box.count(), count);
    box.set_colour(0xff0000u);
    EXPECT_EQ(box.currentText(), "Blue");
}

TEST(ColourBox, AnotherColourIsAskedForAndACancelKeepsTheOldOne) {
    ColourBox box;
    box.show();
    box.set_colour(0x0000ffu);
    with_dialogs({[](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }},
                 [&] { QTest::keyClick(&box, Qt::Key_End); });
    EXPECT_EQ(box.colour(), 0x0000ffu);
    EXPECT_EQ(box.currentText(), "Red");
    with_dialogs({[](QWidget& dialog) {
                     dynamic_cast<QColorDialog&>(dialog).setCurrentColor(QColor(1, 2, 3));
                     QTest::keyClick(&dialog, Qt::Key_Return);
                 }},
                 [&] { QTest::keyClick(&box, Qt::Key_End); });
    EXPECT_EQ(box.colour(), 0x030201u);
}
