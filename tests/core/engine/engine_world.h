#pragma once

#include "core/engine/calendar_engine.h"
#include "support/fake_timer.h"
#include "support/grid_world.h"

#include <string>
#include <vector>

namespace support {

// The world of the grid with the engine in it: the week of Sunday, 7 to Saturday, 13 January 2024 with Ann and
// Bob, a row for each; nine slots of an hour from 8:00. Column 2 is the Sunday.
class EngineWorld : public GridWorld {
public:
    explicit EngineWorld(const values::Locale& locale = values::english_us()) : GridWorld(locale) {
        have_users({"Ann", "Bob"});
        act_data.contacts["contact-----"][26] = std::string("Chris Smith");
        hide_extra_fields();
    }

    void open_week() { open(DateTime::of(2024, 1, 10)); }

    // So that a cell's text is the contact's name alone.
    void hide_extra_fields() {
        for (int line = 0; line < 6; ++line)
            for (const std::string view : {"Daily", "Weekly"})
                set("Fields", view + "Field" + std::to_string(line), "0");
    }

    // An hour with Chris Smith, for Ann.
    FakeActivityRecord& add(const std::string& name, DateTime start, int minutes = 60) {
        FakeActivityRecord& record = act_data.add_activity(user_id(name), start, user_id("Ann"));
        record.fields[act::activity_field::contact] = std::string("contact-----");
        record.fields[act::activity_field::duration] = std::int64_t{minutes};
        return record;
    }
    FakeActivityRecord& add_daily(const std::string& name, DateTime start) {
        FakeActivityRecord& record = add(name, start);
        record.recurring_type = act::RecurrenceKind::daily;
        return record;
    }

    // What the slots hold, slot by slot from the first column on: "slot/column activity", the activity's id
    // without what fills it up.
    std::vector<std::string> placed() {
        std::vector<std::string> found;
        for (const grid::clsMsgSchedSlot& slot : calendar.layout.Slots)
            for (int index = 0; index < slot.record_count(); ++index)
                if (slot.record(index).InUse)
                    found.push_back(std::to_string(slot.SlotNo().value) + "/" + std::to_string(slot.Col()) + " " +
                                    name_of(slot.record(index).ActivityID));
        return found;
    }
    // The one record that the slots hold.
    grid::SlotRecord only_record() {
        std::vector<grid::SlotRecord> found;
        for (const grid::clsMsgSchedSlot& slot : calendar.layout.Slots)
            for (int index = 0; index < slot.record_count(); ++index)
                if (slot.record(index).InUse)
                    found.push_back(slot.record(index));
        if (found.size() != 1)
            throw std::logic_error(std::to_string(found.size()) + " records");
        return found.front();
    }
    std::string displayed() const { return engine.placing.DisplayedIDs.text(); }
    static std::string name_of(const std::string& id) { return id.substr(0, id.find('-')); }
    // The first line of each box that was shown.
    std::vector<std::string> failures() const {
        std::vector<std::string> lines;
        for (const host::Message& message : box.shown) {
            const std::size_t end = message.text.find('\r', message.text.find('\r') + 1);
            lines.push_back(message.text.substr(0, end));
        }
        return lines;
    }

    FakeTimer timer;
    engine::CalendarEngine engine{here, settings, act, calendar, timer};
};

} // namespace support
