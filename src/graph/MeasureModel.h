#pragma once

#include "flight/Comparison.h"

#include <QtCore/QAbstractTableModel>

namespace TARN {

/// What is measured of the same curve of the reference flight, times on the flight's clock.
struct ComparedCurve
{
    std::optional<double> referenceAtA;
    std::optional<double> referenceAtB;
    std::optional<double> differenceAtA;
    std::optional<double> differenceAtB;
    Statistics reference; ///< from A to B
    Statistics difference;
};

/// What is measured of one curve.
struct MeasuredCurve
{
    const ProfileParameter* parameter;
    QColor color;
    std::optional<double> atA; ///< nothing where it has no value
    std::optional<double> atB;
    QString wordsAtA; ///< of a state, instead of its number; a number between two states is none
    QString wordsAtB;
    Statistics statistics;                 ///< from A to B
    std::optional<ComparedCurve> compared; ///< where there is a reference

    /// Whether the headers of two rows are the same.
    static bool hasSameName(const MeasuredCurve& a, const MeasuredCurve& b)
    {
        return a.parameter == b.parameter && a.color == b.color;
    }
};

/// The table of the measuring panel: a row for each curve, its values at two moments A and B and
/// the statistics from A to B; the parameter's name is also the header of its row. Numbers have six
/// digits, their tool tips all. Qt::UserRole gives what a column is sorted by.
class MeasureModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        AColumn,
        BColumn,
        DifferenceColumn, ///< B - A
        RateColumn,       ///< the difference a second
        MinColumn,
        MinTimeColumn,
        MaxColumn,
        MaxTimeColumn,
        MeanColumn,
        TimeMeanColumn,
        DeviationColumn,
        IntegralColumn,
        SamplesColumn,
        GapsColumn,
        AboveColumn,          ///< seconds not below each threshold
        MeanDifferenceColumn, ///< this and the following with a reference only; the time means'
        DifferenceAColumn,
        DifferenceBColumn,
        MinDifferenceColumn,
        MaxDifferenceColumn,
        ReferenceMeanColumn, ///< time mean
        ReferenceAColumn,
        ReferenceBColumn,
        ReferenceMinColumn,
        ReferenceMaxColumn,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// \p range from A to B.
    void setCurves(std::vector<MeasuredCurve> curves, const TimeRange& range);

    /// The moment that a cell tells of, seconds: that of an extreme.
    std::optional<double> timeOf(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::optional<double> number(const MeasuredCurve& curve, int column) const;
    static std::optional<double> comparedNumber(const ComparedCurve& compared, int column);
    QVariant rowHeader(const MeasuredCurve& curve, int role) const;
    QString text(const MeasuredCurve& curve, int column) const;
    QString toolTip(const MeasuredCurve& curve, int column) const;

    std::vector<MeasuredCurve> mCurves;
    TimeRange mRange;
};

} // namespace TARN
