#pragma once

#include "table/ReferenceColumns.h"
#include "table/TableRows.h"

#include <QtCore/QAbstractTableModel>

namespace TARN {

/// The value table: a time column and one column for each selected parameter, followed by that of
/// the reference flight where it is wanted. Cells are decoded when they are looked at, so opening a
/// flight costs what its visible rows cost.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TableModel(QObject* parent = nullptr);

    /// Shows other rows; never null.
    void setRows(std::shared_ptr<const TableRows> rows);
    const TableRows& rows() const { return *mRows; }

    /// Shows what the reference flight has, in tool tips and \p inColumns; null: there is none. \p
    /// shift in seconds brings its times to the clock of the rows.
    void setReference(std::shared_ptr<const ReferenceColumns> columns, double shift,
                      bool inColumns);

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
    QVariant valueData(int row, std::size_t place, int role) const;
    QVariant referenceData(int row, std::size_t place, int role) const;
    QString referenceText(int row, std::size_t place) const;
    bool hasColumns() const { return mReference != nullptr && mInColumns; }
    int columnsEach() const { return hasColumns() ? 2 : 1; }
    std::size_t placeOf(int column) const
    {
        return static_cast<std::size_t>((column - 1) / columnsEach());
    }
    bool isOfReference(int column) const { return hasColumns() && column % 2 == 0; }

    std::shared_ptr<const TableRows> mRows;
    bool mAllDigits = false;
    std::shared_ptr<const ReferenceColumns> mReference;
    double mShift = 0.0;
    bool mInColumns = false;
};

} // namespace TARN
