#pragma once

#include "logbook/Logbook.h"

#include <QtCore/QAbstractTableModel>

namespace TARN {

/// The parameters of an engine with what the latest flight says of each among the others: those
/// that left their band first, unless the user wants another order.
class TrendListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        AwayColumn,   ///< the latest from the median, in sigmas
        MarkedColumn, ///< number of flights
        LatestColumn,
        MedianColumn,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setTrends(std::vector<ParameterTrend> trends);

    /// Only parameters whose name holds this text, in capitals or not.
    void setFilter(const QString& text);

    const ParameterTrend& trend(int row) const
    {
        return mTrends[mRows[static_cast<std::size_t>(row)]];
    }
    const std::vector<ParameterTrend>& trends() const { return mTrends; } ///< all
    int rowOf(const QString& fullName) const; ///< -1 where it is not shown
    /// Number of parameters that the latest flight's mark is on.
    int markedNow() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void arrange();

    std::vector<ParameterTrend> mTrends;
    std::vector<std::size_t> mRows; ///< into mTrends
    QString mText;
    int mColumn = AwayColumn;
    Qt::SortOrder mOrder = Qt::DescendingOrder;
};

/// The latest flight with a value; null when there is none.
const TrendPoint* latestOf(const ParameterTrend& trend);

/// How far a value lies from the median of its baseline, in sigmas; nothing without one, infinite
/// where all the others are the same.
std::optional<double> sigmasAway(const TrendPoint& point);

} // namespace TARN
