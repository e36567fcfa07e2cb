#include "desk/windows/record_table.h"

#include "desk/windows/conversions.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace windows {
namespace {

// Pale, so that the icons in a selected row can be made out.
QPalette with_pale_selection(QPalette palette) {
    constexpr float strength = 0.25F;
    const QColor ground = palette.color(QPalette::Base);
    const QColor full = palette.color(QPalette::Active, QPalette::Highlight);
    const auto mixed = [](float from, float to) { return from + (to - from) * strength; };
    palette.setColor(QPalette::Highlight,
                     QColor::fromRgbF(mixed(ground.redF(), full.redF()), mixed(ground.greenF(), full.greenF()),
                                      mixed(ground.blueF(), full.blueF())));
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
    return palette;
}

} // namespace

RecordTable::RecordTable(QWidget* parent) : QTableView(parent) {
    setPalette(with_pale_selection(palette()));
    setAlternatingRowColors(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    sorted_.setSortRole(RecordModel::order_role);
    sorted_.setSortLocaleAware(true);
    sorted_.setSortCaseSensitivity(Qt::CaseInsensitive);
    connect(this, &QTableView::doubleClicked, this, [this] { emit opened(current_id()); });
}

void RecordTable::set_columns(std::vector<Column> columns, std::optional<int> sorted_by) {
    model_ = new RecordModel(std::move(columns), this);
    sorted_.setSourceModel(model_);
    setModel(&sorted_);
    setSortingEnabled(true);
    sortByColumn(sorted_by.value_or(-1), Qt::AscendingOrder);
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
            [this, own = sorted_by.value_or(-1)](int column, Qt::SortOrder order) {
                if (column != own || order != Qt::AscendingOrder)
                    ask_for_all_rows();
            });
}

void RecordTable::ask_for_all_rows() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    while (model_->canFetchMore({}))
        model_->fetchMore({});
    QGuiApplication::restoreOverrideCursor();
}

void RecordTable::show_rows(std::vector<Row> rows, FurtherRows further) {
    const std::string kept = current_id();
    const int scrolled = verticalScrollBar()->value();
    is_replacing_ = true;
    model_->show_rows(std::move(rows), std::move(further));
    select(kept);
    verticalScrollBar()->setValue(scrolled);
    is_replacing_ = false;
    fit_columns();
    if (current_id() != kept)
        emit chosen(current_id());
}

int RecordTable::row_count() const { return sorted_.rowCount(); }

std::string RecordTable::id_at(int row) const {
    return stored(sorted_.index(row, 0).data(RecordModel::id_role).toString());
}

std::string RecordTable::current_id() const {
    return stored(selectionModel()->currentIndex().data(RecordModel::id_role).toString());
}

std::vector<std::string> RecordTable::selected_ids() const {
    std::vector<std::string> ids;
    for (int row = 0; row < row_count(); ++row)
        if (selectionModel()->isRowSelected(row, {}))
            ids.push_back(id_at(row));
    return ids;
}

bool RecordTable::select(const std::string& id) {
    for (int row = 0; row < row_count(); ++row)
        if (id_at(row) == id) {
            setCurrentIndex(sorted_.index(row, 0));
            return true;
        }
    return false;
}

void RecordTable::clear_choice() { setCurrentIndex({}); }

void RecordTable::keyPressEvent(QKeyEvent* event) {
    const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_enter && !current_id().empty())
        emit opened(current_id());
    else
        QTableView::keyPressEvent(event);
}

void RecordTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    const bool is_same_row = current.isValid() && previous.isValid() && current.row() == previous.row();
    if (!is_replacing_ && !is_same_row)
        emit chosen(current_id());
}

// Once, on the first rows; from then on the widths belong to the user.
void RecordTable::fit_columns() {
    if (are_columns_fitted_ || row_count() == 0)
        return;
    are_columns_fitted_ = true;
    resizeColumnsToContents();
    const int widest = fontMetrics().averageCharWidth() * 34;
    const int air = fontMetrics().averageCharWidth() * 2;
    for (int column = 0; column < sorted_.columnCount(); ++column)
        setColumnWidth(column, std::min(columnWidth(column) + air, widest));
}

} // namespace windows
