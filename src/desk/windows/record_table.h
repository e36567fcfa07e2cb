#pragma once

#include "desk/windows/record_model.h"

#include <QSortFilterProxyModel>
#include <QTableView>

#include <optional>
#include <string>
#include <vector>

namespace windows {

// A sortable table of records, of which one can be current. It stays on its record when the rows are replaced.
class RecordTable : public QTableView {
    Q_OBJECT

public:
    explicit RecordTable(QWidget* parent = nullptr);

    // Called once, before the rows are shown. Sorts by the column of that number, from 0; without one the rows
    // keep their order.
    void set_columns(std::vector<Column> columns, std::optional<int> sorted_by = std::nullopt);
    // Further rows are asked for as they come into sight, all of them when another order is wanted; they come in
    // the order of the column that set_columns names.
    void show_rows(std::vector<Row> rows, FurtherRows further = {});

    int row_count() const;
    std::string id_at(int row) const;              // as displayed; empty outside the rows
    std::string current_id() const;                // empty when no row is current
    std::vector<std::string> selected_ids() const; // from the top; more than one only in extended selection
    bool select(const std::string& id);            // false when it isn't displayed
    void clear_choice();

signals:
    void opened(const std::string& id); // by a double click or the Enter key
    void chosen(const std::string& id); // the current record has changed; empty for none

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void fit_columns();
    void ask_for_all_rows();

    RecordModel* model_ = nullptr;
    QSortFilterProxyModel sorted_;
    bool are_columns_fitted_ = false;
    bool is_replacing_ = false;
};

} // namespace windows
