#include "graph/MeasureModel.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "flight/StatisticsWords.h"

#include <QtGui/QPixmap>

#include <algorithm>
#include <utility>

namespace TARN {

void MeasureModel::setCurves(std::vector<MeasuredCurve> curves, const TimeRange& range)
{
    const bool isSameSize = curves.size() == mCurves.size();
    const bool hasSameNames = std::ranges::equal(curves, mCurves, MeasuredCurve::hasSameName);
    if (!isSameSize) {
        beginResetModel();
    }
    mCurves = std::move(curves);
    mRange = range;
    if (!isSameSize) {
        endResetModel();
        return;
    }
    if (!mCurves.empty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
    if (!hasSameNames) {
        Q_EMIT headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    }
}

std::optional<double> MeasureModel::timeOf(const QModelIndex& index) const
{
    const MeasuredCurve& curve = mCurves[static_cast<std::size_t>(index.row())];
    const auto timeOf = [](const std::optional<Statistics::Moment>& moment) {
        return moment ? std::optional(moment->time) : std::nullopt;
    };
    const Statistics none;
    const Statistics& reference = curve.compared ? curve.compared->reference : none;
    const Statistics& difference = curve.compared ? curve.compared->difference : none;
    switch (index.column()) {
    case MinColumn:
    case MinTimeColumn:
        return timeOf(curve.statistics.min);
    case MaxColumn:
    case MaxTimeColumn:
        return timeOf(curve.statistics.max);
    case ReferenceMinColumn:
        return timeOf(reference.min);
    case ReferenceMaxColumn:
        return timeOf(reference.max);
    case MinDifferenceColumn:
        return timeOf(difference.min);
    case MaxDifferenceColumn:
        return timeOf(difference.max);
    default:
        return {};
    }
}

int MeasureModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mCurves.size());
}

int MeasureModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(ColumnCount);
}

std::optional<double> MeasureModel::number(const MeasuredCurve& curve, int column) const
{
    const Statistics& found = curve.statistics;
    const auto valueOf = [](const auto& moment) {
        return moment ? std::optional(moment->value) : std::nullopt;
    };
    const auto timeOf = [](const auto& moment) {
        return moment ? std::optional(moment->time) : std::nullopt;
    };
    const auto difference = curve.atA && curve.atB && curve.wordsAtA.isEmpty()
                                ? std::optional(*curve.atB - *curve.atA)
                                : std::optional<double>();
    switch (column) {
    case AColumn:
        return curve.atA;
    case BColumn:
        return curve.atB;
    case DifferenceColumn:
        return difference;
    case RateColumn:
        return difference && mRange.hasExtent()
                   ? std::optional(*difference / (mRange.stop - mRange.start))
                   : std::nullopt;
    case MinColumn:
        return valueOf(found.min);
    case MinTimeColumn:
        return timeOf(found.min);
    case MaxColumn:
        return valueOf(found.max);
    case MaxTimeColumn:
        return timeOf(found.max);
    case MeanColumn:
        return found.mean;
    case TimeMeanColumn:
        return found.timeMean;
    case DeviationColumn:
        return found.stddev;
    case IntegralColumn:
        return found.integral;
    case SamplesColumn:
        return static_cast<double>(found.samples);
    case GapsColumn:
        return static_cast<double>(found.gaps);
    case AboveColumn:
        return found.above.empty() ? std::nullopt : std::optional(found.above.back().seconds);
    default:
        return curve.compared ? comparedNumber(*curve.compared, column) : std::nullopt;
    }
}

std::optional<double> MeasureModel::comparedNumber(const ComparedCurve& compared, int column)
{
    const auto valueOf = [](const std::optional<Statistics::Moment>& moment) {
        return moment ? std::optional(moment->value) : std::nullopt;
    };
    switch (column) {
    case MeanDifferenceColumn:
        return compared.difference.timeMean;
    case DifferenceAColumn:
        return compared.differenceAtA;
    case DifferenceBColumn:
        return compared.differenceAtB;
    case MinDifferenceColumn:
        return valueOf(compared.difference.min);
    case MaxDifferenceColumn:
        return valueOf(compared.difference.max);
    case ReferenceMeanColumn:
        return compared.reference.timeMean;
    case ReferenceAColumn:
        return compared.referenceAtA;
    case ReferenceBColumn:
        return compared.referenceAtB;
    case ReferenceMinColumn:
        return valueOf(compared.reference.min);
    case ReferenceMaxColumn:
        return valueOf(compared.reference.max);
    default:
        return {};
    }
}

QString MeasureModel::text(const MeasuredCurve& curve, int column) const
{
    const auto found = number(curve, column);
    const QString words = column == AColumn   ? curve.wordsAtA
                          : column == BColumn ? curve.wordsAtB
                                              : QString();
    if (column == NameColumn) {
        return curve.parameter->title();
    }
    if (!words.isEmpty()) {
        return words;
    }
    if (!found) {
        return column == AboveColumn ? QString() : "---";
    }
    switch (column) {
    case MinTimeColumn:
    case MaxTimeColumn:
        return clockTextWithMilliseconds(*found);
    case IntegralColumn:
        return integralWords(*found, curve.parameter->unit);
    case SamplesColumn:
    case GapsColumn:
        return countText(static_cast<qint64>(*found));
    case AboveColumn: {
        QStringList all;
        for (const Statistics::Above& above : curve.statistics.above) {
            all += aboveWords(above);
        }
        return all.join("  ");
    }
    default:
        return numberWords(*found);
    }
}

QString MeasureModel::toolTip(const MeasuredCurve& curve, int column) const
{
    constexpr int AllDigits = 17;
    const auto found = number(curve, column);
    switch (column) {
    case NameColumn:
        return curve.parameter->fullName;
    case SamplesColumn:
        return tr("Of them without a number: %1")
            .arg(countText(static_cast<qint64>(curve.statistics.invalid)));
    case GapsColumn:
        return curve.statistics.gapLimit ? tr("Steps of more than %1 s, together %2 s")
                                               .arg(numberWords(*curve.statistics.gapLimit),
                                                    numberWords(curve.statistics.gapSeconds))
                                         : tr("Sent only when something changes");
    case AboveColumn:
        return text(curve, column).replace("  ", "\n");
    case MinColumn:
    case MaxColumn:
    case MinTimeColumn:
    case MaxTimeColumn:
    case MinDifferenceColumn:
    case MaxDifferenceColumn:
    case ReferenceMinColumn:
    case ReferenceMaxColumn:
        return found ? tr("Click to go there") : QString();
    default:
        return found ? numberWords(*found, AllDigits) : QString();
    }
}

QVariant MeasureModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const MeasuredCurve& curve = mCurves[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return text(curve, index.column());
    case Qt::ToolTipRole:
        return toolTip(curve, index.column());
    case Qt::UserRole: {
        const auto found = number(curve, index.column());
        return index.column() == NameColumn ? QVariant(index.row())
               : found                      ? QVariant(*found)
                                            : QVariant();
    }
    case Qt::DecorationRole:
        return index.column() == NameColumn ? QVariant(curve.color) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == NameColumn ? QVariant()
                                            : QVariant(int(Qt::AlignRight | Qt::AlignVCenter));
    default:
        return {};
    }
}

QVariant MeasureModel::rowHeader(const MeasuredCurve& curve, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return curve.parameter->title();
    case Qt::ToolTipRole:
        return curve.parameter->fullName;
    case Qt::DecorationRole: {
        constexpr int Side = 12;    // pixels
        QPixmap swatch(Side, Side); // a header paints no bare colour
        swatch.fill(curve.color);
        return swatch;
    }
    default:
        return {};
    }
}

QVariant MeasureModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        const auto row = static_cast<std::size_t>(section);
        return row < mCurves.size() ? rowHeader(mCurves[row], role) : QVariant();
    }
    if (section < 0 || section >= ColumnCount ||
        (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const std::pair<QString, QString> titles[] = {
        {tr("Parameter"), tr("Curves of the graph, in their order")},
        {"A", tr("Value at A")},
        {"B", tr("Value at B")},
        {"B \u2212 A", tr("Difference of the values at A and B")},
        {tr("per s"), tr("Difference a second from A to B")},
        {tr("Min"), tr("Smallest value from A to B")},
        {tr("Min at"), tr("When it stands first, recording clock")},
        {tr("Max"), tr("Greatest value from A to B")},
        {tr("Max at"), tr("When it stands first, recording clock")},
        {tr("Mean"), tr("Mean of the values from A to B")},
        {tr("Time mean"), tr("Mean of the values, each weighed with the time that it holds")},
        {tr("Std. dev."), tr("Standard deviation of the values from A to B")},
        {tr("Integral"), tr("Area below the curve from A to B: of litres an hour the litres")},
        {tr("Samples"), tr("Samples from A to B")},
        {tr("Gaps"), tr("Stretches from A to B in which the parameter was not heard")},
        {tr("Above thresholds"), tr("For each threshold the seconds that the value was not below")},
        {tr("\u0394 time mean"), tr("Flight minus reference: mean from A to B, each difference "
                                    "weighed with the time that it holds")},
        {tr("\u0394 A"), tr("Flight minus reference at A")},
        {tr("\u0394 B"), tr("Flight minus reference at B")},
        {tr("\u0394 min"), tr("Smallest difference of flight and reference from A to B")},
        {tr("\u0394 max"), tr("Greatest difference of flight and reference from A to B")},
        {tr("Ref. time mean"), tr("Time mean of the reference from A to B")},
        {tr("Ref. A"), tr("Value of the reference at A")},
        {tr("Ref. B"), tr("Value of the reference at B")},
        {tr("Ref. min"), tr("Smallest value of the reference from A to B")},
        {tr("Ref. max"), tr("Greatest value of the reference from A to B")}};
    const auto& [title, help] = titles[section];
    return role == Qt::DisplayRole ? title : help;
}

} // namespace TARN
