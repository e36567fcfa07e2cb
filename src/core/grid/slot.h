#pragma once

#include "core/grid/day_grid.h"
#include "core/host/guard.h"
#include "core/table/grid_model.h"
#include "core/values/date_time.h"

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace grid {

class Layout;
struct Drawing;

// One activity of a slot. Flags are "1" and "0", colours and the type are decimal text, as SetCell gets them.
struct SlotRecord {
    bool InUse = false; // off: the entry is free and may be filled again
    std::string ActivityID;
    std::string ContactID;
    std::string Recurring;
    std::string Cleared;
    std::string BackColor; // empty: the cell keeps its background
    std::string ForeColor;
    std::string Type; // "1" call, "2" meeting, "3" to-do
    std::string Text;
    std::string Detail; // the user's name, two bars, and the rest of the sort key
    std::string HasDetails;
    int GoesBeyond = 0; // further slots into which it runs on
};

// What SetCell puts into a record, with the record's names and forms.
struct SlotEntry {
    std::string_view ActivityID, ContactID, Recurring, Cleared, BackColor, ForeColor, Type, Text, Detail,
        HasDetails;
    int GoesBeyond = 0;
};

// A time slot of one day: the activities that fall into it, in order of arrival, and how they are drawn.
class clsMsgSchedSlot {
public:
    clsMsgSchedSlot(const Layout& layout, const host::Guard& guarded) : layout_(&layout), guarded_(&guarded) {}

    void Initialize(SlotNumber slot_number, int col);
    // Fills the first free record, or one more at the end.
    void SetCell(const SlotEntry& entry);
    // Frees the first record of that id, if there is one; an empty id is that of a record that was never filled.
    void DeleteCell(std::string_view activity_id);
    // Back to CellsPerSlot free records. Changed stays as it is.
    void ClearCells();

    values::DateTime Time() const;            // the slot's start, as the settings now say
    values::DateTime Day() const;             // the date of the column when the slot was initialised
    bool Changed() const { return changed_; } // records changed since the last whole Write_To_Grid

    // Draws the records in order of their Detail. `result` becomes the cell that shows the activity sought, and is
    // left alone when none does. A row off the grid shows the failure box and leaves Changed on.
    void Write_To_Grid(Drawing& drawing, std::string_view activity_id_sought, std::optional<table::Place>& result);
    static std::string ExtractUserName(std::string_view detail);
    // The row of the slot, from first_row on, that belongs to the user, in the grid's current column; -1 if none.
    int GetCorrectCell(const table::GridModel& grid, std::string_view user_name, int first_row) const;

    SlotNumber SlotNo() const { return slot_number_; }
    int Col() const { return col_; }
    int FirstRow() const { return lines_.row_of(slot_number_); }
    int LastRow() const { return lines_.last_row_of(slot_number_); }
    // Records, the free ones included; a free one that was never filled is empty.
    int record_count() const;
    const SlotRecord& record(int index) const;

private:
    void clear_cells(Drawing& drawing) const;
    // Makes the row of the record's user current. False when there is no such row, or when it shows an activity
    // already: then the plus picture tells of this one.
    bool take_user_row(Drawing& drawing, const SlotRecord& record) const;
    void draw_record(Drawing& drawing, SlotRecord& record, bool overflow) const;
    // Lists and links the cells of the following slots into which the activity runs on.
    void continue_below(Drawing& drawing, const SlotRecord& record) const;

    const Layout* layout_;
    const host::Guard* guarded_;
    DayGrid lines_; // as it was at Initialize
    SlotNumber slot_number_;
    std::int16_t col_ = 0;
    bool changed_ = false;
    values::DateTime start_date_;
    // The records, of which as many count as were filled since the last ClearCells; the next ones follow them,
    // with what they held before, so that their texts have room already. Records beyond, up to the slot's rows,
    // are free and empty and take no room.
    std::deque<SlotRecord> records_;
    std::size_t filled_ = 0;
    std::size_t first_free_ = 0; // all records before it are in use
};

// All slots by slot number and grid column, from FixedCols on. An index outside fails with 9.
class Slots {
public:
    // Replaces all slots by new, initialised ones.
    void rebuild(const Layout& layout, const host::Guard& guarded);
    int count() const { return slots_; } // slot numbers go from 0 to count - 1
    int first_col() const { return first_col_; }
    int last_col() const { return cols_ - 1; }
    clsMsgSchedSlot& operator()(SlotNumber slot, int col) { return records_[index(slot, col)]; }
    const clsMsgSchedSlot& operator()(SlotNumber slot, int col) const { return records_[index(slot, col)]; }

    std::vector<clsMsgSchedSlot>::iterator begin() { return records_.begin(); }
    std::vector<clsMsgSchedSlot>::iterator end() { return records_.end(); }
    std::vector<clsMsgSchedSlot>::const_iterator begin() const { return records_.begin(); }
    std::vector<clsMsgSchedSlot>::const_iterator end() const { return records_.end(); }

private:
    std::size_t index(SlotNumber slot, int col) const;

    std::vector<clsMsgSchedSlot> records_;
    int slots_ = 0, first_col_ = 0, cols_ = 0;
};

} // namespace grid
