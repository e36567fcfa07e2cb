#include "companions/activitywin/dialog_filler.h"

#include "support/desk_on_bus.h"
#include "support/fake_user_store.h"

#include <QTest>
#include <gtest/gtest.h>

#include <optional>

using companions::DialogFiller;
using namespace std::chrono_literals;

namespace {

class DialogFillerTest : public testing::Test {
protected:
    void leave_values() {
        values.write("Activity", "Type", "C");
        values.write("Activity", "Date", "3/12/2024");
        values.write("Activity", "Time", "9:30:00 AM");
        values.write("Activity", "Duration", "30");
        values.write("Activity", "Regarding", "Größe; \"x\"");
        values.write("Activity", "Priority", "H");
        values.write("Activity", "For", "Anna Berg");
    }
    const model::ActivityValues given{"C", "3/12/2024", "9:30:00 AM", "30", "Größe; \"x\"", "H", "Anna Berg"};

    void start(std::chrono::milliseconds patience = 20s) {
        filler = std::make_unique<DialogFiller>(bus.connection(), values, patience);
        QObject::connect(filler.get(), &DialogFiller::done, [this](const QString& text) {
            EXPECT_FALSE(problem) << "told twice";
            problem = text.toStdString();
        });
        filler->start();
    }
    // What it said in the end; absent when it goes on waiting.
    std::optional<std::string> outcome(int milliseconds = 10000) {
        return QTest::qWaitFor([this] { return problem.has_value(); }, milliseconds) ? problem : std::nullopt;
    }
    void open_dialog(bool is_for_new_activity) {
        on_bus.run([=, this] { on_bus.desk.open_dialog(is_for_new_activity); });
    }
    std::vector<model::ActivityValues> filled() {
        std::vector<model::ActivityValues> result;
        on_bus.run([&] { result = on_bus.desk.filled; });
        return result;
    }
    std::vector<std::string> shown_tabs() {
        std::vector<std::string> result;
        on_bus.run([&] { result = on_bus.desk.shown_tabs; });
        return result;
    }
    bool recurring_lingers() { return !values.read("Activity", "RecurringEdit").empty(); }

    support::PrivateBus bus;
    support::DeskOnBus on_bus{bus};
    support::FakeUserStore user_store;
    settings::PerUserStore values{user_store};
    std::unique_ptr<DialogFiller> filler;
    std::optional<std::string> problem;
};

} // namespace

TEST_F(DialogFillerTest, FillsADialogThatOpensLater) {
    leave_values();
    start();
    EXPECT_EQ(outcome(300), std::nullopt);
    open_dialog(true);
    EXPECT_EQ(outcome(), "");
    EXPECT_EQ(filled().back(), given);
}

TEST_F(DialogFillerTest, FillsADialogThatIsOpenAlready) {
    leave_values();
    open_dialog(true);
    start();
    EXPECT_EQ(outcome(), "");
    EXPECT_EQ(filled().back(), given);
}

TEST_F(DialogFillerTest, GivesWhatIsInTheStoreWhenTheDialogOpens) {
    start();
    leave_values();
    open_dialog(true);
    EXPECT_EQ(outcome(), "");
    EXPECT_EQ(filled().back(), given);
}

TEST_F(DialogFillerTest, ValuesThatAreMissingAreEmpty) {
    start();
    open_dialog(true);
    EXPECT_EQ(outcome(), "");
    EXPECT_EQ(filled().back(), model::ActivityValues());
}

TEST_F(DialogFillerTest, ShowsTheRecurringTabOfAStoredActivityAndFillsNothing) {
    leave_values();
    values.write("Activity", "RecurringEdit", "1");
    start();
    open_dialog(false);
    EXPECT_EQ(outcome(), "");
    EXPECT_EQ(shown_tabs(), std::vector<std::string>{"Recurring"});
    EXPECT_TRUE(filled().empty());
    EXPECT_FALSE(recurring_lingers());
}

TEST_F(DialogFillerTest, EndsWithoutADeedWhenItsDialogWasRefused) {
    leave_values();
    values.write("Activity", "RecurringEdit", "1");
    start();
    EXPECT_EQ(outcome(300), std::nullopt);
    values.remove("Activity", "RecurringEdit");
    open_dialog(false);
    EXPECT_EQ(outcome(), "The dialog for the recurring settings wasn't opened.");
    EXPECT_TRUE(shown_tabs().empty());
    EXPECT_TRUE(filled().empty());
}

TEST_F(DialogFillerTest, DoesntWaitForADialogThatWasRefused) {
    values.write("Activity", "RecurringEdit", "1");
    start();
    values.remove("Activity", "RecurringEdit");
    EXPECT_EQ(outcome(), "The dialog for the recurring settings wasn't opened.");
}

TEST_F(DialogFillerTest, AWordAboutRecurringSettingsThatWasLeftBehindDoesntKeepANewActivityEmpty) {
    leave_values();
    values.write("Activity", "RecurringEdit", "1");
    start();
    open_dialog(true);
    EXPECT_EQ(outcome(), "");
    EXPECT_EQ(filled().back(), given);
    EXPECT_TRUE(shown_tabs().empty());
    EXPECT_FALSE(recurring_lingers());
}

TEST_F(DialogFillerTest, LeavesADialogAloneThatIsntForIt) {
    leave_values();
    open_dialog(false);
    start();
    EXPECT_EQ(outcome(300), std::nullopt);
    EXPECT_TRUE(filled().empty());
    EXPECT_TRUE(shown_tabs().empty());
    open_dialog(true);
    EXPECT_EQ(outcome(), "");
    EXPECT_EQ(filled().back(), given);
}

TEST_F(DialogFillerTest, EndsWhenNoDialogComes) {
    values.write("Activity", "RecurringEdit", "1");
    start(50ms);
    EXPECT_EQ(outcome(), "No dialog for an activity has opened.");
    EXPECT_FALSE(recurring_lingers());
}

TEST_F(DialogFillerTest, EndsWithTheRefusalOfTheDesk) {
    values.write("Activity", "RecurringEdit", "1");
    on_bus.run([&] { on_bus.desk.refusal = "Not now."; });
    open_dialog(false);
    start();
    EXPECT_EQ(outcome(), "Not now.");
}

TEST_F(DialogFillerTest, EndsWhenTheBusOrTheDeskIsntThere) {
    filler = std::make_unique<DialogFiller>(QDBusConnection("nowhere"), values);
    QObject::connect(filler.get(), &DialogFiller::done,
                     [this](const QString& text) { problem = text.toStdString(); });
    filler->start();
    EXPECT_NE(outcome().value_or(""), "");
    support::PrivateBus empty;
    problem.reset();
    filler = std::make_unique<DialogFiller>(empty.connection(), values);
    QObject::connect(filler.get(), &DialogFiller::done,
                     [this](const QString& text) { problem = text.toStdString(); });
    filler->start();
    EXPECT_NE(outcome().value_or(""), "");
}
