#include "desk/windows/recurrence_page.h"

#include "core/values/failure.h"
#include "desk_fixture.h"
#include "support/locales.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

using namespace windows;
using store::Recurrence;
using store::RecurrenceKind;
using values::DateTime;

namespace {

class RecurrencePageTest : public testing::Test {
protected:
    // Wednesday, in the first week of its month.
    const DateTime start = DateTime::of(2024, 3, 6, 9);

    void show(const Recurrence& rule = {}, const std::vector<DateTime>& exceptions = {}) {
        page.show_rule(rule, exceptions, start, values::english_us());
        page.show();
    }
    template <typename Widget>
    Widget* part(const char* name) {
        return page.findChild<Widget*>(name);
    }
    void choose_kind(int kind) {
        part<QComboBox>("kind_box")->setFocus();
        for (int step = 0; step < kind; ++step)
            QTest::keyClick(part<QComboBox>("kind_box"), Qt::Key_Down);
    }
    void click_tick(const char* name) {
        auto* box = part<QCheckBox>(name);
        ASSERT_NE(box, nullptr) << name;
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
    void retype(const char* field, const char* text) {
        part<QLineEdit>(field)->selectAll();
        QTest::keyClicks(part<QLineEdit>(field), text);
    }
    std::string failure() {
        try {
            page.rule();
        } catch (const values::Failure& failure) {
            return failure.description();
        }
        return {};
    }
    using Dates = std::vector<DateTime>;
    RecurrencePage page;
};

} // namespace

TEST_F(RecurrencePageTest, AnActivityThatHappensOnceHasNoRule) {
    show();
    EXPECT_EQ(page.rule(), Recurrence());
    EXPECT_FALSE(part<QSpinBox>("frequency_box")->isEnabled());
}

TEST_F(RecurrencePageTest, GivesBackEachKindAsItWasGiven) {
    const Recurrence rules[] = {
        {RecurrenceKind::daily, 3, std::nullopt, 0, 0, 0},
        {RecurrenceKind::weekly, 2, DateTime::of(2024, 12, 31), 0b0101010, 0, 0},
        {RecurrenceKind::days_of_month, 1, std::nullopt, 0, 0, 1u << 30 | 1u},
        {RecurrenceKind::weekdays_of_month, 6, DateTime::of(2025, 3, 6), 0b1000001, 0b10010, 0},
    };
    for (const Recurrence& rule : rules) {
        RecurrencePage other;
        other.show_rule(rule, {}, start, support::german());
        EXPECT_EQ(other.rule(), rule);
    }
}

TEST_F(RecurrencePageTest, AKindThatIsChosenBeginsWithTheStartsOwnDay) {
    show();
    choose_kind(1);
    EXPECT_EQ(page.rule(), (Recurrence{RecurrenceKind::daily, 1, std::nullopt, 0, 0, 0}));
    choose_kind(1);
    EXPECT_EQ(page.rule(), (Recurrence{RecurrenceKind::weekly, 1, std::nullopt, 1 << 3, 0, 0}));
    choose_kind(1);
    EXPECT_EQ(page.rule(), (Recurrence{RecurrenceKind::days_of_month, 1, std::nullopt, 0, 0, 1u << 5}));
    choose_kind(1);
    EXPECT_EQ(page.rule(), (Recurrence{RecurrenceKind::weekdays_of_month, 1, std::nullopt, 1 << 3, 1, 0}));
}

TEST_F(RecurrencePageTest, TicksChooseTheWeekdays) {
    show();
    choose_kind(2);
    click_tick("weekly_page_Monday");
    EXPECT_EQ(page.rule().days_of_week, 1 << 3 | 1 << 1);
    click_tick("weekly_page_Wednesday");
    EXPECT_EQ(page.rule().days_of_week, 1 << 1);
}

TEST_F(RecurrencePageTest, TheFrequencyIsTyped) {
    show();
    choose_kind(1);
    auto* box = part<QSpinBox>("frequency_box");
    box->selectAll();
    QTest::keyClicks(box, "14");
    EXPECT_EQ(page.rule().frequency, 14);
}

TEST_F(RecurrencePageTest, ARuleWithoutADayIsRefused) {
    show();
    choose_kind(2);
    click_tick("weekly_page_Wednesday");
    EXPECT_EQ(failure(), "Choose at least one weekday on which the activity repeats.");
    choose_kind(1);
    click_tick("days_page_6");
    EXPECT_EQ(failure(), "Choose at least one day of the month on which the activity repeats.");
    choose_kind(1);
    click_tick("weekdays_page_First");
    EXPECT_EQ(failure(), "Choose at least one week of the month in which the activity repeats.");
}

TEST_F(RecurrencePageTest, AnEndBeforeTheStartIsRefusedAndTheStartsOwnDayIsNot) {
    show();
    choose_kind(1);
    click_tick("until_box");
    retype("until_edit", "3/5/2024");
    EXPECT_EQ(failure(), "The series ends before it begins.");
    retype("until_edit", "3/6/2024");
    EXPECT_EQ(page.rule().until, DateTime::of(2024, 3, 6));
    page.set_start(DateTime::of(2024, 3, 7));
    EXPECT_EQ(failure(), "The series ends before it begins.");
}

TEST_F(RecurrencePageTest, ExceptionsAreAddedOnceAndRemoved) {
    show({RecurrenceKind::daily, 1, std::nullopt, 0, 0, 0}, {DateTime::of(2024, 3, 10, 9)});
    retype("exception_edit", "3/8/2024");
    QTest::mouseClick(part<QPushButton>("add_exception_button"), Qt::LeftButton);
    QTest::mouseClick(part<QPushButton>("add_exception_button"), Qt::LeftButton);
    EXPECT_EQ(page.exceptions(), (Dates{DateTime::of(2024, 3, 8), DateTime::of(2024, 3, 10)}));
    auto* list = part<QListWidget>("exceptions_list");
    EXPECT_EQ(list->item(0)->text(), "3/8/2024");
    EXPECT_FALSE(part<QPushButton>("remove_exception_button")->isEnabled());
    list->setCurrentRow(1);
    QTest::mouseClick(part<QPushButton>("remove_exception_button"), Qt::LeftButton);
    EXPECT_EQ(page.exceptions(), Dates{DateTime::of(2024, 3, 8)});
}

TEST_F(RecurrencePageTest, AnExceptionThatIsNoDateIsTold) {
    show({RecurrenceKind::daily, 1, std::nullopt, 0, 0, 0});
    retype("exception_edit", "soon");
    with_dialogs({[](QWidget& box) {
                     EXPECT_EQ(box.findChild<QLabel*>("qt_msgbox_label")->text(), "\"soon\" is no date.");
                     QTest::keyClick(&box, Qt::Key_Return);
                 }},
                 [&] { QTest::mouseClick(part<QPushButton>("add_exception_button"), Qt::LeftButton); });
    EXPECT_EQ(page.exceptions(), Dates{});
}

TEST_F(RecurrencePageTest, WithoutARuleThereAreNoExceptions) {
    show({RecurrenceKind::daily, 1, std::nullopt, 0, 0, 0}, {DateTime::of(2024, 3, 10)});
    QTest::keyClick(part<QComboBox>("kind_box"), Qt::Key_Home);
    EXPECT_EQ(page.exceptions(), Dates{});
}
