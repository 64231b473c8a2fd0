#include "logbook/FlightListModel.h"

#include "base/CellColor.h"
#include "base/PlainTip.h"
#include "faults/EventWords.h"

#include <QtCore/QDateTime>
#include <QtGui/QBrush>
#include <QtGui/QFont>

#include <algorithm>
#include <limits>

namespace TARN {

namespace {

/// What a column is sorted by; engines are texts.
double keyOf(const FlightHead& flight, int column)
{
    switch (column) {
    case FlightListModel::StartColumn:
        return flight.start ? static_cast<double>(*flight.start)
                            : -std::numeric_limits<double>::infinity();
    case FlightListModel::DurationColumn:
        return flight.duration();
    case FlightListModel::WorstColumn:
        return flight.worst;
    case FlightListModel::LimitsColumn:
        return static_cast<double>(flight.limits);
    case FlightListModel::WarningsColumn:
        return static_cast<double>(flight.warnings);
    case FlightListModel::LampsColumn:
        return static_cast<double>(flight.lamps);
    case FlightListModel::FaultsColumn:
        return static_cast<double>(flight.faults);
    default:
        return static_cast<double>(flight.remarks);
    }
}

QColor colorOf(const FlightHead& flight)
{
    return flight.worst == StateLimit     ? LimitColor
           : flight.worst == StateWarning ? WarningColor
                                          : QColor();
}

QString countOrNothing(std::size_t count)
{
    return count > 0 ? QString::number(count) : QString();
}

} // namespace

QString dateWords(const std::optional<qint64>& seconds)
{
    return seconds ? QDateTime::fromSecsSinceEpoch(*seconds, Qt::UTC).toString("yyyy-MM-dd hh:mm")
                   : QString("-");
}

QString spanWords(double seconds)
{
    constexpr double Longest = 1e9; // of what a damaged clock tells
    const auto all = static_cast<qint64>(seconds > 0.0 ? std::min(seconds, Longest) : 0.0);
    return QString("%1:%2:%3")
        .arg(all / 3600)
        .arg(all / 60 % 60, 2, 10, QChar('0'))
        .arg(all % 60, 2, 10, QChar('0'));
}

QString engineWords(const QString& aircraft)
{
    return aircraft.isEmpty() ? FlightListModel::tr("without number") : aircraft;
}

void FlightListModel::setFlights(std::shared_ptr<const std::vector<FlightHead>> flights)
{
    beginResetModel();
    mFlights = std::move(flights);
    arrange();
    endResetModel();
}

void FlightListModel::setFilter(const std::optional<QString>& engine, const QString& text)
{
    if (mEngine == engine && mText == text) {
        return; // ten thousand rows are not arranged again for nothing
    }
    beginResetModel();
    mEngine = engine;
    mText = text;
    arrange();
    endResetModel();
}

void FlightListModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    mColumn = column;
    mOrder = order;
    arrange();
    endResetModel();
}

void FlightListModel::arrange()
{
    mRows.clear();
    for (std::size_t k = 0; k < flights().size(); ++k) {
        const FlightHead& flight = flights()[k];
        bool isWanted = !mEngine || flight.aircraft == *mEngine;
        if (isWanted && !mText.isEmpty()) {
            isWanted = false;
            for (int column = 0; column < ColumnCount && !isWanted; ++column) {
                isWanted = textOf(flight, column).contains(mText, Qt::CaseInsensitive);
            }
        }
        if (isWanted) {
            mRows.push_back(k);
        }
    }
    const auto isLess = [this](std::size_t a, std::size_t b) {
        const FlightHead& left = flights()[mOrder == Qt::AscendingOrder ? a : b];
        const FlightHead& right = flights()[mOrder == Qt::AscendingOrder ? b : a];
        return mColumn == EngineColumn ? left.aircraft < right.aircraft
                                       : keyOf(left, mColumn) < keyOf(right, mColumn);
    };
    if (!std::ranges::is_sorted(mRows, isLess)) {
        std::ranges::stable_sort(mRows, isLess);
    }
}

int FlightListModel::rowOf(const QString& flight) const
{
    const auto found = std::ranges::find(
        mRows, flight, [this](std::size_t k) -> const QString& { return flights()[k].flight; });
    return found == mRows.end() ? -1 : static_cast<int>(found - mRows.begin());
}

int FlightListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mRows.size());
}

int FlightListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString FlightListModel::textOf(const FlightHead& flight, int column) const
{
    switch (column) {
    case StartColumn:
        return dateWords(flight.start);
    case DurationColumn:
        return spanWords(flight.duration());
    case EngineColumn:
        return engineWords(flight.aircraft);
    case WorstColumn:
        return severityWords(EventKind::Limits).value(flight.worst);
    case LimitsColumn:
        return countOrNothing(flight.limits);
    case WarningsColumn:
        return countOrNothing(flight.warnings);
    case LampsColumn:
        return countOrNothing(flight.lamps);
    case FaultsColumn:
        return countOrNothing(flight.faults);
    default:
        return countOrNothing(flight.remarks);
    }
}

QString FlightListModel::toolTipOf(const FlightHead& flight) const
{
    const QString clock = flight.startSource == "data"     ? tr("by the UTC in its data")
                          : flight.startSource == "header" ? tr("by its header, in whatever zone")
                                                           : tr("nothing tells when it was");
    return plainTip(
        tr("Flight %1, %2.\nEngine %3 %4, profile %5.\nDouble-click: open it; with Shift: open "
           "it as the reference.")
            .arg(flight.flight.left(12), clock, engineWords(flight.aircraft), flight.engineType,
                 flight.profile));
}

QVariant FlightListModel::data(const QModelIndex& index, int role) const
{
    const FlightHead& of = flight(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return textOf(of, column);
    case Qt::ToolTipRole:
        return toolTipOf(of);
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter |
                   (column == EngineColumn || column == WorstColumn || column == StartColumn
                        ? Qt::AlignLeft
                        : Qt::AlignRight));
    case Qt::BackgroundRole:
        return column == WorstColumn ? backgroundOf(colorOf(of)) : QVariant();
    case Qt::ForegroundRole:
        return column == WorstColumn ? foregroundOn(colorOf(of)) : QVariant();
    case Qt::FontRole:
        if (column == StartColumn && of.startSource == "header") {
            QFont slanted;
            slanted.setItalic(true); // no UTC
            return slanted;
        }
        return {};
    default:
        return {};
    }
}

QVariant FlightListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    const std::pair<QString, QString> titles[ColumnCount] = {
        {tr("Start (UTC)"), tr("When the flight began; slanted: by the header's clock, whose zone "
                               "is not known")},
        {tr("Duration"), tr("From the first sample to the last")},
        {tr("Engine"), tr("Serial number of the engine")},
        {tr("Worst"), tr("The worst that happened")},
        {tr("Limits"), tr("Times out of range that reached a limit")},
        {tr("Warnings"), tr("Times out of range that did not reach a limit")},
        {tr("Lamps"), tr("Times that a warning lamp was on")},
        {tr("Faults"), tr("Warnings and faults that the matrices told of")},
        {tr("Remarks"), tr("What is to be said about the recordings themselves")}};
    const auto& [title, tip] = titles[section];
    return role == Qt::DisplayRole ? title : tip;
}

} // namespace TARN
