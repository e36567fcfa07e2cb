#pragma once

#include "adapters/records/desk_database.h"
#include "core/engine/engine_world.h"
#include "core/interaction/interaction.h"
#include "core/values/text.h"
#include "desk/store/sqlite_connection.h"
#include "support/fake_main_window.h"
#include "support/fake_presenter.h"
#include "support/recording_act.h"
#include "support/scripted_desk.h"
#include "support/temporary_database.h"

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace support {

// What the user does with a grid over a real database: the week of Sunday, 7 to Saturday, 13 January 2024, now
// Wednesday, 10 January, 9:00; Ann and Bob with a row each in nine slots of an hour from 8:00. Column 2 is the
// Sunday, column 5 the Wednesday.
class InteractionWorld : public EngineWorld {
public:
    InteractionWorld() {
        database.now = clock.time;
        main_window.chkView_Click = [](int) {}; // what a view shows then is the navigation's own
        ann = store().add(store::User{.name = "Ann"});
        bob = store().add(store::User{.name = "Bob"});
        chris = store().add(store::Contact{.fields = {{26, "Chris Smith"}}});
        dana = store().add(store::Contact{.fields = {{26, "Dana Jones"}}});
        erin = store().add(store::Contact{.fields = {{26, "Erin Black"}}});
    }

    // With the activities that the store has by then.
    void open(int days = 7, bool one_row_per_user = true, DateTime date = DateTime::of(2024, 1, 10)) {
        session.Create_Database();
        session.ActDatabase = std::make_unique<RecordingDatabase>(
            records::make_database([this] { return database.path(); }), record);
        session.ActDatabase->OpenEx("");
        session.ActContact = session.ActDatabase->Contact();
        session.ActActivity = session.ActDatabase->Activity();
        session.ActUsers = session.ActDatabase->Users();
        session.ActFields = session.ActContact->Fields();
        session.ActGroup = session.ActDatabase->Group();
        session.ActApp = static_cast<act::Application&>(running_desk);
        session.ActContactView = static_cast<act::ContactView&>(running_desk);
        users.Initialize_Users(act::ShownUsers::of_the_filter);
        users.map_users();
        grid::Layout& layout = calendar.layout;
        layout.NumDays(days);
        layout.OneRowPerUser(one_row_per_user);
        layout.Initialize_Dates(date);
        if (days == 1)
            layout.show(date);
        calendar.Setup_Calendar(layout.StartDate(), layout.EndDate());
        engine.refresh.Refresh_Data();
        select(row_of(0), layout.FixedCols());
        forget();
    }

    store::Store& store() { return database.store(); }
    // An hour with Chris Smith for Ann on that day of January 2024.
    store::Activity meeting(int day, int hour, int minutes = 60) {
        const DateTime start = DateTime::of(2024, 1, day, hour);
        return {.start = start,
                .end = start.plus_minutes(minutes),
                .duration = minutes,
                .user = ann,
                .contacts = {chris}};
    }
    // The same every day from then on.
    store::Activity daily(int day, int hour, int minutes = 60) {
        store::Activity series = meeting(day, hour, minutes);
        series.recurrence.kind = store::RecurrenceKind::daily;
        return series;
    }
    std::string add(const store::Activity& activity) { return store().add(activity); }
    store::Activity stored(const std::string& id) { return store().activity(id).value(); }
    bool exists(const std::string& id) { return store().activity(id).has_value(); }
    std::vector<store::Activity> all() { return store().activities({}); }
    // The one activity that isn't one of those.
    store::Activity other_than(const std::string& id) {
        std::vector<store::Activity> others = all();
        std::erase_if(others, [&](const store::Activity& one) { return one.id == id; });
        if (others.size() != 1)
            throw std::logic_error(std::to_string(others.size()) + " other activities");
        return others.front();
    }
    std::int64_t revision() { return store().revision(); }
    // The temporary instances that would be taken back, should the program die now.
    std::int64_t remembered_instances() {
        store::SqliteConnection connection(database.path(), store::SqliteConnection::Mode::read_write);
        store::Rows rows = connection.query("SELECT count(*) FROM temporary_instances WHERE settled_revision > 0");
        rows.step();
        return rows.number(0);
    }
    // A change that the desk's user makes now; what is stored later is later by a minute.
    template <typename Change>
    void change(const std::string& id, Change change) {
        tick();
        store::Activity activity = stored(id);
        change(activity);
        store().update(activity);
    }
    void tick() { database.now = clock.time = clock.time.plus_minutes(1); }

    // Slot 0 is 8:00; of a slot's rows the first is Ann's, the second Bob's.
    int row_of(int hour_from_8, int position = 0) const {
        return calendar.layout.first_row_of(grid::SlotNumber(hour_from_8)) + position;
    }
    static int col_of(int day) { return day - 7 + 2; } // of January 2024
    grid::clsMsgSchedCell& cell(int row, int col) { return calendar.layout.Cells(row, col); }
    void select(int row, int col) {
        calendar.msgSched.Row(row);
        calendar.msgSched.Col(col);
        calendar.selection.SelectedCell = calendar.layout.Cells.reference(row, col);
    }
    grid::clsMsgSchedCell& selected() { return calendar.selection.selected(); }
    std::string shown(int row, int col) const {
        return std::string(values::trimmed(calendar.msgSched.TextMatrix(row, col)));
    }
    // The middle of a cell on the screen.
    int x(int col) const { return calendar.msgSched.ColPos(col) + calendar.msgSched.ColWidth(col) / 2; }
    int y(int row) const { return calendar.msgSched.RowPos(row) + calendar.msgSched.RowHeight(row) / 2; }
    void press(int button, int shift, int row, int col) {
        hands.mouse.msgSched_MouseDown(button, shift, x(col), y(row));
    }
    // From one cell to another, with the keys and moves of a drag.
    void drag(int row, int col, int to_row, int to_col) {
        press(1, 2, row, col);
        hands.drag_drop.msgSched_DragDrop(x(to_col), y(to_row));
    }

    // Runs the work once, before the first call that begins so is carried out.
    void before_call(const std::string& beginning, const std::function<void()>& work) {
        record.before = [this, beginning, work](const std::string& call) {
            if (!call.starts_with(beginning))
                return;
            const auto once = work; // the next line ends what this function captured
            record.before = nullptr;
            once();
        };
    }
    void fail_before(const std::string& beginning, const std::string& sentence = "The desk has gone.") {
        before_call(beginning, [sentence] { throw values::Failure(values::FailureNumber::automation, sentence); });
    }
    // The text of the box that was shown, when it was one.
    std::string only_box() const {
        return box.shown.size() == 1 ? box.shown[0].text : std::to_string(box.shown.size()) + " boxes";
    }

    void forget() {
        record.calls.clear();
        box.shown.clear();
        window.calls.clear();
    }
    // The calls up to the first refresh.
    std::vector<std::string> calls() const {
        return {record.calls.begin(), std::find(record.calls.begin(), record.calls.end(), "Rebuild")};
    }
    bool refreshed() const {
        return std::find(record.calls.begin(), record.calls.end(), "Rebuild") != record.calls.end();
    }

    TemporaryDatabase database;
    CallRecord record;
    ScriptedDesk running_desk{database.store(), record};
    FakePresenter presenter;
    FakeActivityChange question;
    FakeMainWindow main_window;
    FakeDialogs dialogs;
    shell::Navigation navigation{here, main_window, dialogs, engine};
    std::string ann, bob, chris, dana, erin;
    interaction::Interaction hands{here, settings, engine, navigation, {presenter, question}};
};

} // namespace support
