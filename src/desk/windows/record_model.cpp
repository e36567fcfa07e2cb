#include "desk/windows/record_model.h"

#include "desk/windows/conversions.h"

#include <QBrush>
#include <QColor>
#include <QFont>

#include <algorithm>
#include <iterator>

namespace windows {

RecordModel::RecordModel(std::vector<Column> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(std::move(columns)) {}

void RecordModel::show_rows(std::vector<Row> rows, FurtherRows further) {
    beginResetModel();
    rows_ = std::move(rows);
    further_ = std::move(further);
    endResetModel();
}

bool RecordModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && static_cast<bool>(further_);
}

void RecordModel::fetchMore(const QModelIndex& parent) {
    if (!canFetchMore(parent))
        return;
    std::vector<Row> rows = further_();
    if (rows.empty()) {
        further_ = nullptr;
        return;
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(rows.size()) - 1);
    std::ranges::move(rows, std::back_inserter(rows_));
    endInsertRows();
}

int RecordModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RecordModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RecordModel::data(const QModelIndex& index, int role) const {
    const Row& row = rows_.at(static_cast<std::size_t>(index.row()));
    const Cell& cell = row.cells.at(static_cast<std::size_t>(index.column()));
    switch (role) {
    case Qt::DisplayRole:
        return cell.text;
    case Qt::DecorationRole:
        return cell.icon.isNull() ? QVariant() : cell.icon;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(columns_[static_cast<std::size_t>(index.column())].alignment |
                                   Qt::AlignVCenter);
    case Qt::FontRole: {
        if (!row.is_struck_out)
            return {};
        QFont font;
        font.setStrikeOut(true);
        return font;
    }
    case Qt::ForegroundRole:
        return row.is_struck_out ? QBrush(QColor(0x70, 0x70, 0x70)) : QVariant();
    case id_role:
        return shown(row.id);
    case order_role:
        return cell.order.isValid() ? cell.order : QVariant(cell.text);
    default:
        return {};
    }
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const Column& column = columns_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole)
        return column.title;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(column.alignment | Qt::AlignVCenter);
    return {};
}

} // namespace windows
