#pragma once

#include "display/TableRows.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"

#include <QtCore/QAbstractTableModel>

namespace TARN {

/// The value table: a time column and one column for each selected parameter. Cells are decoded
/// when they are looked at, so opening a flight costs what its visible rows cost.
class TableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit TableModel(QObject* parent = nullptr);

    /// Takes over the selection of the profile; the table is empty until updateRecord.
    void updateProfile(const Profile& profile);

    /// Shows a recording; null empties the table. Refers to it until the next call of either.
    void updateRecord(const Record* record);

    /// Last row that is not after \p time (seconds); 0 when there is none.
    int rowAt(double time) const { return static_cast<int>(mRows.rowAt(time)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;

    /// Qt::UserRole of the time column is the row's time in milliseconds.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant timeData(int row, int role) const;
    QVariant valueData(int row, int column, int role) const;

    ProfileInfo mProfile; ///< a copy that the decoders refer to: the profile may be reloaded
    std::vector<ProfileParameter> mParameters;
    std::vector<Decoder> mDecoders;
    TableRows mRows;
};

} // namespace TARN
