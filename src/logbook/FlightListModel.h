#pragma once

#include "logbook/FlightEntry.h"

#include <QtCore/QAbstractTableModel>

#include <memory>

namespace TARN {

/// The flights of a logbook as a table, those that the user wants to see in the order that they
/// want.
class FlightListModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        StartColumn,
        DurationColumn,
        EngineColumn,
        WorstColumn, ///< severity
        LimitsColumn,
        WarningsColumn,
        LampsColumn,
        FaultsColumn,
        RemarksColumn,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// The latest first.
    void setFlights(std::shared_ptr<const std::vector<FlightHead>> flights);

    /// Only flights of this engine, of all without one, that hold this text in a cell, in capitals
    /// or not.
    void setFilter(const std::optional<QString>& engine, const QString& text);

    const FlightHead& flight(int row) const
    {
        return flights()[mRows[static_cast<std::size_t>(row)]];
    }
    int rowOf(const QString& flight) const; ///< by key; -1 where it is not shown
    const std::vector<FlightHead>& flights() const { return *mFlights; } ///< all

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Of equals the later flight comes first.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    QString textOf(const FlightHead& flight, int column) const;
    QString toolTipOf(const FlightHead& flight) const;
    void arrange();

    std::shared_ptr<const std::vector<FlightHead>> mFlights =
        std::make_shared<std::vector<FlightHead>>();
    std::vector<std::size_t> mRows; ///< into mFlights
    std::optional<QString> mEngine;
    QString mText;
    int mColumn = StartColumn;
    Qt::SortOrder mOrder = Qt::DescendingOrder;
};

/// "2026-11-21 12:00", "-" without one; \p seconds since 1970.
QString dateWords(const std::optional<qint64>& seconds);

/// "1:02:33"; flights may last longer than a day.
QString spanWords(double seconds);

/// A serial number as it is shown, which may be empty.
QString engineWords(const QString& aircraft);

} // namespace TARN
