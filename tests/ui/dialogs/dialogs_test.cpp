#include "ui/dialogs/form_opener.h"

#include "core/shell/shell_world.h"
#include "support/with_dialogs.h"

#include <gtest/gtest.h>

namespace {

class DialogsTest : public ::testing::Test, protected support::ShellWorld {
protected:
    QWidget main_window;
    ui::FormOpener shown{main_window, calendar};
};

TEST_F(DialogsTest, ShowTheDaysOffOverTheWindowUntilTheyAreClosed) {
    start();
    bool is_closed = false;
    with_dialogs({[&](QWidget& dialog) {
                     EXPECT_EQ(dialog.objectName(), "frmHolidays");
                     EXPECT_EQ(dialog.parentWidget(), &main_window);
                     EXPECT_FALSE(is_closed);
                     dialog.close();
                 }},
                 [&] {
                     shown.show_frmHolidays();
                     is_closed = true;
                 });
    EXPECT_TRUE(box.shown.empty());
}

} // namespace
