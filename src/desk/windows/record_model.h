#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QString>
#include <QVariant>

#include <functional>
#include <string>
#include <vector>

namespace windows {

struct Cell {
    QString text;
    QVariant order = {}; // what sorts the column; the text where it is absent
    QIcon icon = {};
};

struct Row {
    std::string id;
    std::vector<Cell> cells; // one for each column
    bool is_struck_out = false;
};

struct Column {
    QString title;
    Qt::Alignment alignment = Qt::AlignLeft;
};

// Gives the rows that come after those which it gave before; none when there are no more.
using FurtherRows = std::function<std::vector<Row>()>;

// Records as rows of texts. Its rows are replaced as a whole; those beyond the first are asked for as they come
// into sight.
class RecordModel : public QAbstractTableModel {
public:
    enum Role { id_role = Qt::UserRole, order_role };

    explicit RecordModel(std::vector<Column> columns, QObject* parent = nullptr);

    void show_rows(std::vector<Row> rows, FurtherRows further = {});

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<Column> columns_;
    std::vector<Row> rows_;
    FurtherRows further_;
};

} // namespace windows
