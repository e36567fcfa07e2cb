#include "core/host/guard.h"

#include "support/fake_message_box.h"
#include "support/fake_window.h"

#include <gtest/gtest.h>
#include <new>
#include <optional>
#include <stdexcept>
#include <vector>

using host::Guard;
using host::Step;
using values::Failure;
using values::FailureNumber;

namespace {

class GuardTest : public ::testing::Test {
protected:
    std::string shown_text() const { return box.shown.empty() ? "no box" : box.shown.back().text; }

    support::FakeMessageBox box;
    host::ApplicationInfo application{
        .title = "Orvanta", .major = 3, .minor = 1, .revision = 4, .support_address = "help@team.example"};
    support::FakeWindow window;
    Guard guarded{box, application, window};
};

void fail(Step&) { throw Failure(FailureNumber::type_mismatch); }

} // namespace

TEST_F(GuardTest, ShowsTheUsualBoxWithPlaceAndStatement) {
    guarded("in frmMain: Sub Form_Load - Line # ", [](Step& step) {
        step = 10;
        step = 120;
        throw Failure(FailureNumber::type_mismatch);
    });
    ASSERT_EQ(box.shown.size(), 1u);
    EXPECT_EQ(box.shown[0].text, "Error 13: 'Type mismatch'\r"
                                 "in frmMain: Sub Form_Load - Line # 120\r"
                                 "Orvanta: 3.1.4\r\r"
                                 "Please contact help@team.example with this error message.");
    EXPECT_EQ(box.shown[0].title, "Orvanta error");
}

TEST_F(GuardTest, TheBoxHasAnOkButtonAndNoIcon) {
    guarded("place ", [](Step&) { throw Failure(FailureNumber::overflow); });
    ASSERT_EQ(box.shown.size(), 1u);
    EXPECT_EQ(box.shown[0].buttons, host::Buttons::ok);
    EXPECT_EQ(box.shown[0].icon, host::Icon::none);
}

TEST_F(GuardTest, GivesTheDefaultResultAfterAFailure) {
    const auto fails = [](Step&) -> int { throw Failure(FailureNumber::overflow); };
    EXPECT_EQ(guarded("place ", fails), 0);
    EXPECT_EQ(guarded("place ", [](Step&) -> std::string { throw Failure(FailureNumber::overflow); }), "");
    EXPECT_FALSE(guarded("place ", [](Step&) -> std::optional<int> { throw Failure(FailureNumber::overflow); }));
    EXPECT_EQ(box.shown.size(), 3u);
}

TEST_F(GuardTest, GivesTheResultAndShowsNothingWhenAllGoesWell) {
    EXPECT_EQ(guarded("place ", [](Step&) { return 42; }), 42);
    EXPECT_TRUE(box.shown.empty());
}

TEST_F(GuardTest, TellsLineZeroWhenTheFirstStatementSetNoStep) {
    guarded("place ", [](Step&) { throw Failure(FailureNumber::overflow); });
    EXPECT_NE(shown_text().find("\rplace 0\r"), std::string::npos);
}

TEST_F(GuardTest, OnlyTheInnermostProcedureEndsAndItsCallerGoesOn) {
    std::vector<int> reached;
    guarded("in outer ", [&](Step& outer) {
        outer = 10;
        guarded("in inner ", [&](Step& inner) {
            inner = 20;
            throw Failure(FailureNumber::object_not_set);
        });
        reached.push_back(1);
    });
    EXPECT_EQ(reached.size(), 1u);
    ASSERT_EQ(box.shown.size(), 1u);
    EXPECT_NE(shown_text().find("\rin inner 20\r"), std::string::npos);
}

TEST_F(GuardTest, AFailureOfAProcedureWithoutAHandlerShowsAsItsCallers) {
    const auto without_handler = [] { throw Failure(FailureNumber::file_not_found); };
    guarded("in caller ", [&](Step& step) {
        step = 30;
        without_handler();
    });
    EXPECT_EQ(shown_text().substr(0, 55), "Error 53: 'File not found'\rin caller 30\rOrvanta: 3.1.4\r");
}

TEST_F(GuardTest, TurnsExceptionsFromElsewhereIntoFailures) {
    guarded("place ", [](Step&) { throw std::bad_alloc(); });
    EXPECT_EQ(shown_text().substr(0, 26), "Error 7: 'Out of memory'\rp");
    guarded("place ", [](Step&) { throw std::runtime_error("the library's own words"); });
    EXPECT_EQ(shown_text().substr(0, 36), "Error 51: 'the library's own words'\r");
    guarded("place ", [](Step&) { throw 1; });
    EXPECT_EQ(shown_text().substr(0, 27), "Error 51: 'Internal error'\r");
}

TEST_F(GuardTest, ShowsTheSameBoxOnceWithinOneCommand) {
    const auto command = [&] {
        guarded("in outer ", [&](Step& step) {
            step = 10;
            for (int row = 0; row < 92; ++row)
                guarded("in row ", fail);
            step = 20;
            guarded("in row ", fail);
        });
    };
    command();
    EXPECT_EQ(box.shown.size(), 1u);
    command();
    EXPECT_EQ(box.shown.size(), 2u);
}

TEST_F(GuardTest, ShowsBoxesThatDifferInPlaceLineNumberOrText) {
    guarded("in outer ", [&](Step&) {
        guarded("in one ", fail);
        guarded("in another ", fail);
        guarded("in one ", [](Step& step) {
            step = 10;
            throw Failure(FailureNumber::type_mismatch);
        });
        guarded("in one ", [](Step&) { throw Failure(FailureNumber::overflow); });
        guarded("in one ", [](Step&) { throw Failure(FailureNumber::type_mismatch, "No number."); });
        EXPECT_EQ(box.shown.size(), 5u);
    });
}

TEST_F(GuardTest, ShowsTheSameBoxAgainForWhatIsDoneInADialogOfTheCommand) {
    guarded("in menu ", [&](Step&) {
        guarded("in row ", fail);
        window.loops = 1; // a dialog's
        guarded("in OK ", fail);
        guarded("in OK ", fail);
        guarded("in row ", fail);
        window.loops = 0;
        EXPECT_EQ(box.shown.size(), 4u);
        guarded("in row ", fail);
    });
    EXPECT_EQ(box.shown.size(), 4u);
}

TEST_F(GuardTest, DoesntShowABoxOverItself) {
    const auto tick = [&] { guarded("in tick ", fail); };
    box.while_shown = [&] {
        box.while_shown = nullptr;
        window.loops = 1;
        tick();
        tick();
        window.loops = 0;
    };
    tick();
    EXPECT_EQ(box.shown.size(), 1u);
    tick();
    EXPECT_EQ(box.shown.size(), 2u);
}
