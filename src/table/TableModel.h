#pragma once

#include "table/TableRows.h"

#include <QtCore/QAbstractTableModel>

namespace TARN {

/// The value table: a time column and one column for each selected parameter. Cells are decoded
/// when they are looked at, so opening a flight costs what its visible rows cost.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TableModel(QObject* parent = nullptr);

    /// Shows other rows; never null.
    void setRows(std::shared_ptr<const TableRows> rows);
    const TableRows& rows() const { return *mRows; }

    /// Numbers as the profile prints them, with all their digits, instead of the shortest text
    /// that reads back as what was recorded.
    void setAllDigits(bool on);

    /// Last row that is not after \p time (seconds); 0 when there is none.
    int rowAt(double time) const { return static_cast<int>(mRows->rowAt(time)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// Qt::UserRole of the time column is the row's time in milliseconds. The tool tip of a number
    /// has all its digits.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant timeData(int row, int role) const;
    QVariant valueData(int row, int column, int role) const;

    std::shared_ptr<const TableRows> mRows;
    bool mAllDigits = false;
};

} // namespace TARN
