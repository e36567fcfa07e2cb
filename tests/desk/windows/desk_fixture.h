#pragma once

#include "desk/team_fixture.h"
#include "desk/windows/open_database.h"
#include "support/with_dialogs.h"

#include <QTest>
#include <QWidget>

// The team's database for windows: what they would open, and hands for their parts.
class DeskTest : public TeamTest {
protected:
    DeskTest() : database(values::english_us(), now) {}

    template <typename Widget>
    static Widget* child(const QWidget& parent, const char* name) {
        auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << "no widget " << name;
        return found;
    }

    static void click(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    static void type(QWidget* widget, const char* text) { QTest::keyClicks(widget, QString::fromUtf8(text)); }

    // Selects what the field holds and types over it.
    static void retype(QWidget* widget, const char* text) {
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        type(widget, text);
    }

    windows::OpenDatabase database;
};
