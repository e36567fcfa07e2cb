#pragma once

#include "engine_world.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace support {

// A calendar filled at nine o'clock, with the top left cell of the days selected.
class QuickRefreshWorld : public testing::Test {
protected:
    QuickRefreshWorld() {
        world_.open_week();
        select(1, 2);
    }

    values::DateTime day(int of_january, int hour = 9, int minute = 0) {
        return values::DateTime::of(2024, 1, of_january, hour, minute);
    }
    std::string id(const std::string& name) { return EngineWorld::user_id(name); }
    // An activity last edited before the calendar was filled.
    FakeActivityRecord& add(const std::string& name, values::DateTime start) {
        FakeActivityRecord& record = world_.add(name, start);
        record.fields[act::activity_field::edited] = day(9);
        return record;
    }
    void edit(const std::string& name, values::DateTime edited) {
        world_.act_data.find(id(name))->fields[act::activity_field::edited] = edited;
    }
    void move(const std::string& name, values::DateTime start) {
        FakeActivityRecord& record = *world_.act_data.find(id(name));
        record.fields[act::activity_field::start] = start;
        record.fields[act::activity_field::date] = start.date();
    }
    void remove(const std::string& name) {
        std::erase_if(world_.act_data.activities, [&](const auto& one) { return one.id() == id(name); });
    }
    void select(int row, int col) {
        world_.calendar.selection.SelectedCell = world_.calendar.layout.Cells.reference(row, col);
    }
    void fill() {
        world_.engine.refresh.Refresh_Data();
        world_.act_data.calls.clear();
        world_.window.calls.clear();
    }
    std::vector<std::string> quick() {
        quick_refresh().Add_New(world_.engine.placing.LastRefresh);
        return world_.placed();
    }
    engine::QuickRefresh& quick_refresh() { return world_.engine.quick_refresh; }
    int row_of(int slot) { return world_.calendar.layout.first_row_of(grid::SlotNumber(slot)); }
    grid::clsMsgSchedCell& cell(int slot, int col) { return world_.calendar.layout.Cells(row_of(slot), col); }
    const std::string& shown(int slot, int col) { return world_.calendar.msgSched.TextMatrix(row_of(slot), col); }

    EngineWorld world_;
};

} // namespace support
