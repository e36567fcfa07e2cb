#include "ui/main_window/window_face.h"

#include "window_world.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEventLoop>
#include <QScreen>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

class WindowFace : public ::testing::Test, protected support::WindowWorld {
protected:
    // The shell's view of the window, which it may change.
    shell::MainWindow& face() { return window.face(); }
};

TEST_F(WindowFace, CountsFifteenTwipsToThePixel) {
    window.move(20, 30);
    window.resize(640, 480);
    EXPECT_EQ(face().left(), 300);
    EXPECT_EQ(face().top(), 450);
    EXPECT_EQ(face().width(), 9600);
    EXPECT_EQ(face().height(), 7200);
    EXPECT_EQ(face().screen_width(), window.screen()->size().width() * 15);
    EXPECT_EQ(face().screen_height(), window.screen()->size().height() * 15);
}

TEST_F(WindowFace, TakesItsPlaceOneEdgeAtATime) {
    window.move(20, 30);
    face().set_left(1508);
    EXPECT_EQ(window.pos(), QPoint(101, 30)); // to the nearest pixel
    face().set_top(-15);
    EXPECT_EQ(window.pos(), QPoint(101, -1));
    face().set_size(12000, 6000);
    EXPECT_EQ(window.size(), QSize(800, 400));
}

TEST_F(WindowFace, OfAMaximisedOrMinimisedWindowTellsWhatItGoesBackTo) {
    window.move(20, 30);
    window.resize(640, 480);
    window.show();
    for (const auto state : {shell::WindowState::maximised, shell::WindowState::minimised}) {
        face().set_window_state(state);
        settle();
        EXPECT_EQ(face().window_state(), state);
        EXPECT_EQ(face().left(), 300);
        EXPECT_EQ(face().top(), 450);
        EXPECT_EQ(face().width(), 9600);
        EXPECT_EQ(face().height(), 7200);
        EXPECT_EQ(face().present_width(), window.width() * 15);
        face().set_window_state(shell::WindowState::normal);
        settle();
        EXPECT_EQ(face().window_state(), shell::WindowState::normal);
    }
}

TEST_F(WindowFace, CountsTheEventLoopsThatRunInsideOneAnother) {
    std::vector<int> loops = {face().event_loops()};
    QEventLoop outer;
    QTimer::singleShot(0, &window, [&] {
        loops.push_back(face().event_loops());
        QEventLoop inner;
        QTimer::singleShot(0, &window, [&] {
            loops.push_back(face().event_loops());
            inner.quit();
        });
        inner.exec();
        outer.quit();
    });
    outer.exec();
    loops.push_back(face().event_loops());
    EXPECT_EQ(loops, (std::vector{loops[0], loops[0] + 1, loops[0] + 2, loops[0]}));
}

TEST_F(WindowFace, FillsTheJumpListWithItsFirstEntrySelected) {
    constexpr std::string_view entries[] = {"", "Today", "Märchen"};
    face().fill_cboGoTo(entries);
    face().set_cboGoTo_lines(17);
    const auto* cboGoTo = control<QComboBox>("cboGoTo");
    EXPECT_EQ(cboGoTo->count(), 3);
    EXPECT_EQ(cboGoTo->itemText(2), "Märchen");
    EXPECT_EQ(cboGoTo->currentIndex(), 0);
    EXPECT_EQ(cboGoTo->maxVisibleItems(), 17);
}

TEST_F(WindowFace, ChecksTheViewBoxes) {
    face().set_chkView(0, true);
    face().set_chkView(1, false);
    EXPECT_TRUE(window.face().view_boxes[0]->isChecked());
    EXPECT_FALSE(window.face().view_boxes[1]->isChecked());
}

TEST_F(WindowFace, HoldsPaintingBackWithOneLockHoweverOftenItIsAsked) {
    face().lock_updates();
    face().lock_updates();
    EXPECT_FALSE(window.updatesEnabled());
    face().unlock_updates();
    EXPECT_TRUE(window.updatesEnabled());
}

TEST_F(WindowFace, ShowsTheHourglassUntilTheDefaultPointer) {
    face().show_hourglass();
    face().show_hourglass();
    EXPECT_EQ(window.cursor().shape(), Qt::WaitCursor);
    face().show_default_pointer();
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(WindowFace, BringsAHiddenWindowNowhere) {
    face().bring_to_front();
    EXPECT_FALSE(window.isVisible());
}

} // namespace
