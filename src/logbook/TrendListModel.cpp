#include "logbook/TrendListModel.h"

#include "base/CellColor.h"
#include "flight/StatisticsWords.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TARN {

namespace {

int marksOf(const ParameterTrend& trend)
{
    return static_cast<int>(std::ranges::count(trend.points, true, &TrendPoint::isMarked));
}

bool isMarkedNow(const ParameterTrend& trend)
{
    const TrendPoint* latest = latestOf(trend);
    return latest != nullptr && latest->isMarked;
}

/// What a column of numbers is sorted by; what has none comes last in the first order.
double keyOf(const ParameterTrend& trend, int column)
{
    constexpr double None = -std::numeric_limits<double>::infinity();
    const TrendPoint* latest = latestOf(trend);
    if (column == TrendListModel::MarkedColumn) {
        return marksOf(trend);
    }
    if (latest == nullptr) {
        return None;
    }
    if (column == TrendListModel::AwayColumn) {
        return std::fabs(sigmasAway(*latest).value_or(None));
    }
    return column == TrendListModel::MedianColumn ? latest->median.value_or(None) : *latest->value;
}

QString numberOf(const std::optional<double>& number)
{
    constexpr int Digits = 5; // a column of its own has the place for no more
    return number ? numberWords(*number, Digits) : "---";
}

QString awayText(const std::optional<double>& sigmas)
{
    if (!sigmas) {
        return "---";
    }
    constexpr double Long = 1e5; // of what is nearly always the same
    const double away = std::fabs(*sigmas);
    const QString sign = *sigmas > 0.0 ? "+" : *sigmas < 0.0 ? "-" : "";
    return sign + (std::isinf(away) ? QString(QChar(0x221E))
                   : away < Long    ? QString::number(away, 'f', 1)
                                    : QString::number(away, 'g', 2));
}

} // namespace

const TrendPoint* latestOf(const ParameterTrend& trend)
{
    for (auto point = trend.points.rbegin(); point != trend.points.rend(); ++point) {
        if (point->value) {
            return &*point;
        }
    }
    return nullptr;
}

std::optional<double> sigmasAway(const TrendPoint& point)
{
    if (!point.value || !point.median) {
        return std::nullopt;
    }
    const double away = *point.value - *point.median;
    return away == 0.0 ? 0.0 : away / *point.sigma;
}

void TrendListModel::setTrends(std::vector<ParameterTrend> trends)
{
    beginResetModel();
    mTrends = std::move(trends);
    arrange();
    endResetModel();
}

void TrendListModel::setFilter(const QString& text)
{
    beginResetModel();
    mText = text;
    arrange();
    endResetModel();
}

void TrendListModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    mColumn = column;
    mOrder = order;
    arrange();
    endResetModel();
}

void TrendListModel::arrange()
{
    mRows.clear();
    for (std::size_t k = 0; k < mTrends.size(); ++k) {
        if (mTrends[k].fullName().contains(mText, Qt::CaseInsensitive)) {
            mRows.push_back(k);
        }
    }
    std::ranges::stable_sort(mRows, [this](std::size_t a, std::size_t b) {
        const ParameterTrend& left = mTrends[mOrder == Qt::AscendingOrder ? a : b];
        const ParameterTrend& right = mTrends[mOrder == Qt::AscendingOrder ? b : a];
        if (mColumn == NameColumn) {
            return left.fullName().localeAwareCompare(right.fullName()) < 0;
        }
        return mColumn == AwayColumn ? std::pair(isMarkedNow(left), keyOf(left, mColumn)) <
                                           std::pair(isMarkedNow(right), keyOf(right, mColumn))
                                     : keyOf(left, mColumn) < keyOf(right, mColumn);
    });
}

int TrendListModel::rowOf(const QString& fullName) const
{
    const auto found =
        std::ranges::find(mRows, fullName, [this](std::size_t k) { return mTrends[k].fullName(); });
    return found == mRows.end() ? -1 : static_cast<int>(found - mRows.begin());
}

int TrendListModel::markedNow() const
{
    return static_cast<int>(std::ranges::count_if(mTrends, isMarkedNow));
}

int TrendListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mRows.size());
}

int TrendListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrendListModel::data(const QModelIndex& index, int role) const
{
    const ParameterTrend& of = trend(index.row());
    const int column = index.column();
    if (role == Qt::TextAlignmentRole) {
        return int(Qt::AlignVCenter | (column == NameColumn ? Qt::AlignLeft : Qt::AlignRight));
    }
    if (role == Qt::BackgroundRole || role == Qt::ForegroundRole) {
        const QColor color = column == AwayColumn && isMarkedNow(of) ? LimitColor : QColor();
        return role == Qt::BackgroundRole ? backgroundOf(color) : foregroundOn(color);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    const TrendPoint* latest = latestOf(of);
    switch (column) {
    case NameColumn:
        return of.unit.isEmpty() ? of.fullName() : of.fullName() + " [" + of.unit + "]";
    case AwayColumn:
        return awayText(latest != nullptr ? sigmasAway(*latest) : std::nullopt);
    case MarkedColumn:
        return marksOf(of) > 0 ? QString::number(marksOf(of)) : QString();
    case LatestColumn:
        return numberOf(latest != nullptr ? latest->value : std::nullopt);
    default:
        return numberOf(latest != nullptr ? latest->median : std::nullopt);
    }
}

QVariant TrendListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const std::pair<QString, QString> titles[ColumnCount] = {
        {tr("Parameter"), tr("Device, parameter and unit")},
        {tr("Away"), tr("How far the latest flight lies from the median, in robust standard "
                        "deviations; red where it is marked")},
        {tr("Marked"), tr("Number of flights that leave the band")},
        {tr("Latest"), tr("In the latest flight that has a value")},
        {tr("Median"), tr("Of the other flights since the last maintenance")}};
    const auto& [title, tip] = titles[section];
    return role == Qt::DisplayRole ? title : tip;
}

} // namespace TARN
