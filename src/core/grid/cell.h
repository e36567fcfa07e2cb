#pragma once

#include "core/grid/day_grid.h"
#include "core/table/grid_model.h"
#include "core/values/date_time.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace grid {

class Layout;

// What a cell of the grid means: the activity that it shows, and where and when it stands. It is the result of
// drawing; the slots are the source. It asks the layout for what belongs to the calendar as a whole, so its date
// follows StartDate and its time follows the settings. Accessors have no failure handler.
class clsMsgSchedCell {
public:
    explicit clsMsgSchedCell(const Layout& layout) : layout_(&layout) {}

    // Puts the cell on a row and column and reads its slot's length. An empty text or id leaves the old one.
    void Initialize(int row, int col, std::string_view text = {}, std::string_view activity_id = {});
    bool Initialized() const { return initialized_; }

    int Row() const { return row_; }
    int Col() const { return col_; }
    // Where the cell stands: its slot's number, and the slot's start and length as the settings now say.
    // Fails with 6 in a cell that is not initialised.
    SlotNumber Slot() const;
    values::DateTime Time() const;
    values::DateTime DateTime() const { return Time(); }
    std::string Duration() const;                             // minutes, as text
    int DurationMinutes() const { return duration_minutes_; } // as it was at Initialize
    // The date of the column.
    values::DateTime Day() const;
    values::DateTime DateDay() const { return Day(); }
    // The user whose row it is; empty when rows belong to nobody.
    std::string_view User() const;

    // The text without blanks at its ends, such as those that make room for a picture.
    std::string_view Text() const;
    void Text(std::string_view text) { text_ = text; }
    bool IsOccupied() const { return !text_.empty(); }
    void Delete() { text_.clear(); }
    // Empties text, activity, contact and sort text; everything else stays.
    void Clear();

    const std::string& ActivityID() const { return activity_id_; }
    void ActivityID(std::string_view id) { activity_id_ = id; }
    const std::string& ContactID() const { return contact_id_; }
    void ContactID(std::string_view id) { contact_id_ = id; }
    // The activity's detail text, of which the first element is the user's name.
    const std::string& SortText() const { return sort_text_; }
    void SortText(std::string_view text) { sort_text_ = text; }
    bool Recurring() const { return recurring_; }
    void Recurring(bool on) { recurring_ = on; }
    bool Cleared() const { return cleared_; }
    void Cleared(bool on) { cleared_ = on; }
    bool HasDetails() const { return has_details_; }
    void HasDetails(bool on) { has_details_ = on; }
    bool GoesBeyond() const { return goes_beyond_; }
    void GoesBeyond(bool on) { goes_beyond_ = on; }
    table::Colour BackColor() const { return back_color_; } // a colour, or the number of a band's colour
    void BackColor(table::Colour colour) { back_color_ = colour; }
    table::Colour ForeColor() const { return fore_color_; }
    void ForeColor(table::Colour colour) { fore_color_ = colour; }
    int IconIndex() const { return icon_index_; } // the activity's type, 3 more when it recurs
    void IconIndex(int index) { icon_index_ = static_cast<std::int16_t>(index); }

    // For a cell into which an activity runs on: its id and the row and column of its own cell.
    const std::string& DependsOnActivity() const { return depends_on_activity_; }
    void DependsOnActivity(std::string_view id) { depends_on_activity_ = id; }
    int DependsOnActivityX() const { return depends_on_row_; }
    void DependsOnActivityX(int row) { depends_on_row_ = static_cast<std::int16_t>(row); }
    int DependsOnActivityY() const { return depends_on_col_; }
    void DependsOnActivityY(int col) { depends_on_col_ = static_cast<std::int16_t>(col); }

private:
    const Layout* layout_;
    std::string text_, activity_id_, contact_id_, sort_text_, depends_on_activity_;
    table::Colour back_color_ = 0, fore_color_ = 0;
    DayGrid lines_; // as it was at Initialize
    std::int16_t row_ = 0, col_ = 0;
    std::int16_t duration_minutes_ = 0, icon_index_ = 0, depends_on_row_ = 0, depends_on_col_ = 0;
    bool recurring_ = false, cleared_ = false, has_details_ = false, goes_beyond_ = false, initialized_ = false;
};

// A cell that somebody keeps beyond the call: one of the grid's own records, shared with it, or one that stands
// by itself. It stays good when the grid's records are replaced, as the old record then. Unset it is null.
class CellReference {
public:
    CellReference() = default;
    explicit CellReference(std::shared_ptr<clsMsgSchedCell> cell) : cell_(std::move(cell)) {}

    void reset() { cell_.reset(); }
    explicit operator bool() const { return cell_ != nullptr; }
    clsMsgSchedCell* get() { return cell_.get(); }
    const clsMsgSchedCell* get() const { return cell_.get(); }
    clsMsgSchedCell& operator*() { return *cell_; }
    const clsMsgSchedCell& operator*() const { return *cell_; }
    clsMsgSchedCell* operator->() { return cell_.get(); }
    const clsMsgSchedCell* operator->() const { return cell_.get(); }
    bool operator==(const CellReference&) const = default;

private:
    std::shared_ptr<clsMsgSchedCell> cell_;
};

// All records of the grid by row and column, the fixed ones included. An index outside fails with 9.
class Cells {
public:
    // Replaces all records by new ones, not initialised.
    void rebuild(const Layout& layout, int rows, int cols);
    int rows() const { return rows_; }
    int cols() const { return cols_; }

    clsMsgSchedCell& operator()(int row, int col) { return (*records_)[index(row, col)]; }
    const clsMsgSchedCell& operator()(int row, int col) const { return (*records_)[index(row, col)]; }
    // The record itself to keep, not a copy.
    CellReference reference(int row, int col);

    // Row by row.
    std::vector<clsMsgSchedCell>::iterator begin() { return records_->begin(); }
    std::vector<clsMsgSchedCell>::iterator end() { return records_->end(); }
    std::vector<clsMsgSchedCell>::const_iterator begin() const { return records_->begin(); }
    std::vector<clsMsgSchedCell>::const_iterator end() const { return records_->end(); }

private:
    std::size_t index(int row, int col) const;

    std::shared_ptr<std::vector<clsMsgSchedCell>> records_ = std::make_shared<std::vector<clsMsgSchedCell>>();
    int rows_ = 0, cols_ = 0;
};

} // namespace grid
