#include "called_desk.h"
#include "contract/activity_dialog_proxy.h"

#include <QSignalSpy>

namespace {

class ActivityDialogObject : public CalledDesk<ActivityDialogProxy> {
protected:
    ActivityDialogObject() : CalledDesk(contract::activity_dialog_path) {}

    QString kind() {
        auto reply = proxy.OpenDialog();
        reply.waitForFinished();
        return reply.value();
    }
    void open(bool is_new) {
        on_bus.run([=, this] { desk.open_dialog(is_new); });
    }
    const model::ActivityValues given{"C", "3/12/2024", "9:00:00 AM", "30", "Regarding", "H", "Anna Berg"};
    QDBusPendingReply<> fill() {
        return proxy.Fill("C", "3/12/2024", "9:00:00 AM", "30", "Regarding", "H", "Anna Berg");
    }
};

} // namespace

TEST_F(ActivityDialogObject, TellsWhichKindOfDialogIsOpen) {
    EXPECT_EQ(kind(), "");
    open(true);
    EXPECT_EQ(kind(), "new");
    open(false);
    EXPECT_EQ(kind(), "stored");
}

TEST_F(ActivityDialogObject, SaysWhenADialogOpens) {
    QSignalSpy opened(&proxy, &ActivityDialogProxy::Opened);
    open(true);
    ASSERT_TRUE(opened.wait());
    EXPECT_EQ(opened[0], QVariantList{"new"});
}

TEST_F(ActivityDialogObject, FillsTheDialogOfANewActivity) {
    open(true);
    EXPECT_EQ(refusal(fill()), "");
    on_bus.run([&] { EXPECT_EQ(desk.filled, std::vector{given}); });
}

TEST_F(ActivityDialogObject, DoesntFillTheDialogOfAStoredActivity) {
    open(false);
    EXPECT_EQ(refusal(fill()), "The activity is stored already; its fields aren't filled.");
    on_bus.run([&] { EXPECT_TRUE(desk.filled.empty()); });
}

TEST_F(ActivityDialogObject, ShowsATab) {
    open(false);
    EXPECT_EQ(refusal(proxy.ShowTab("Recurring")), "");
    on_bus.run([&] {
        EXPECT_EQ(desk.shown_tabs, std::vector<std::string>{"Recurring"});
        desk.refusal = "There is no such tab.";
    });
    EXPECT_EQ(refusal(proxy.ShowTab("Weather")), "There is no such tab.");
}

TEST_F(ActivityDialogObject, WithoutADialogThereIsNothingToFillOrShow) {
    const std::string sentence = "No activity is being worked on for another program.";
    EXPECT_EQ(refusal(fill()), sentence);
    EXPECT_EQ(refusal(proxy.ShowTab("Recurring")), sentence);
}
