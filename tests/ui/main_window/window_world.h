#pragma once

#include "support/half_real_server.h"
#include "support/platform_world.h"
#include "support/temporary_database.h"
#include "ui/main_window/frm_main.h"

#include <QComboBox>
#include <QCoreApplication>
#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace support {

// The calendar's window over a real database with one user, Ann, one contact, Chris Smith, and a meeting of an
// hour on Wednesday, 10 January 2024, at 9:00, which is now.
class WindowWorld : public PlatformWorld {
public:
    WindowWorld() {
        ann = database.store().add(store::User{.name = "Ann"});
        chris = database.store().add(store::Contact{.fields = {{26, "Chris Smith"}}});
        add_meeting(9);
    }

    void add_meeting(int hour) {
        const values::DateTime start = values::DateTime::of(2024, 1, 10, hour);
        database.store().add(store::Activity{
            .start = start, .end = start.plus_minutes(60), .duration = 60, .user = ann, .contacts = {chris}});
    }

    void load() {
        window.load();
        settle();
    }
    // Lets everything happen that is due, and what that makes due.
    static void settle() {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    // What the grid shows at that hour on the Wednesday.
    QString at(int hour) {
        return QString::fromStdString(window.calendar().grid.msgSched.TextMatrix(hour - 8 + 1, 5)).trimmed();
    }
    template <typename Control>
    Control* control(const char* name) {
        return window.findChild<Control*>(name);
    }

    void expect_controls_beside_each_other() {
        int right = 0;
        for (const char* name : {"cmdPrevious", "cmdNext", "lblGoTo", "cboGoTo", "chkView_0", "chkView_1",
                                 "chkAMPM_0", "chkAMPM_1", "cboUsers"}) {
            const auto* widget = control<QWidget>(name);
            EXPECT_GE(widget->x(), right) << name << " at " << window.width();
            EXPECT_LE(widget->geometry().right(), widget->parentWidget()->width()) << name;
            right = widget->geometry().right();
            const bool may_shrink = qobject_cast<const QComboBox*>(widget) != nullptr;
            EXPECT_TRUE(may_shrink || widget->width() >= widget->minimumSizeHint().width()) << name;
        }
    }

    TemporaryDatabase database;
    std::string ann, chris;
    HalfRealServer server{database.path()};
    ui::frmMain window{outside(server)};
};

} // namespace support
