#include "events/EventModel.h"

#include "base/CellColor.h"
#include "base/ClockTime.h"

#include <QtGui/QFont>

namespace TARN {

EventModel::EventModel(EventKind kind, const QString& title, QObject* parent)
    : QAbstractTableModel(parent), mKind(kind), mTitle(title), mSeverities(severityWords(kind)),
      mRows(kind)
{}

void EventModel::setEvents(std::shared_ptr<const void> owner,
                           const std::vector<RecordEvent>* events)
{
    beginResetModel();
    mOwner = std::move(owner);
    mRows.setEvents(events);
    endResetModel();
}

void EventModel::setEpisodes(std::shared_ptr<const std::vector<Episode>> episodes)
{
    beginResetModel();
    mRows.setEpisodes(std::move(episodes));
    endResetModel();
}

void EventModel::setReference(std::shared_ptr<const void> keeper,
                              std::vector<EventRows::Other> others)
{
    beginResetModel();
    mRows.setReference(std::move(keeper), std::move(others));
    endResetModel();
}

void EventModel::setAllDigits(bool on)
{
    beginResetModel();
    mAllDigits = on;
    endResetModel();
}

std::optional<EventModel::Place> EventModel::placeOf(int row, const Flight& flight,
                                                     double offset) const
{
    const RecordEvent* event = mRows.event(row);
    const Episode* episode = mRows.episode(row);
    if (event == nullptr && episode == nullptr) {
        return std::nullopt;
    }
    const ProfileParameter* parameter = event != nullptr ? event->parameter : episode->parameter;
    const double moved = mRows.clockShift(row);
    const double start = event != nullptr ? event->time + flight.series(*parameter, offset).shift()
                                          : episode->start + moved;
    return Place{parameter, start,
                 episode != nullptr && episode->peak ? std::optional(episode->peak->time + moved)
                                                     : std::nullopt};
}

int EventModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mRows.count();
}

int EventModel::columnCount(const QModelIndex& parent) const
{
    const int last = mKind == EventKind::Limits ? ThresholdColumn : DurationColumn;
    return parent.isValid() ? 0 : last + 1;
}

QString EventModel::episodeText(const Episode& episode, int column, double shift) const
{
    switch (column) {
    case SeverityColumn:
        return mSeverities.at(episode.state);
    case UntilColumn:
        return clockTextWithMilliseconds(episode.end - shift);
    case DurationColumn:
        return durationWords(episode.duration());
    case PeakColumn:
        return episode.peak ? valueWords(*episode.parameter, episode.peak->value) : QString();
    case ThresholdColumn:
        return episode.peak ? thresholdWords(*episode.peak) : QString();
    default:
        return {};
    }
}

/// What stands as text where no event does.
QString EventModel::headlineOf(const Episode& episode) const
{
    switch (mKind) {
    case EventKind::Limits:
        return episode.name + " " +
               (episode.state == StateLimit ? tr("at its limit") : tr("in warning"));
    case EventKind::Lamps:
        return tr("%1 on").arg(episode.name);
    default:
        return episode.name;
    }
}

QString EventModel::textAt(int row, int column) const
{
    const Episode* episode = mRows.episode(row);
    if (mRows.isHeading(row)) {
        return column != TextColumn         ? QString()
               : mKind == EventKind::Limits ? tr("Out of range without an event")
                                            : tr("On without an event");
    }
    const RecordEvent* event = mRows.event(row);
    if (column > TextColumn) {
        return episode != nullptr ? episodeText(*episode, column, mRows.shift(row)) : QString();
    }
    if (event != nullptr) {
        return column == TimeColumn ? clockTextWithMilliseconds(event->time)
               : mAllDigits         ? event->text
                                    : event->shortText;
    }
    return column == TimeColumn       ? clockTextWithMilliseconds(episode->start - mRows.shift(row))
           : mRows.isOfReference(row) ? tr("Reference: %1").arg(headlineOf(*episode))
                                      : headlineOf(*episode);
}

QVariant EventModel::color(int row, int column, int role) const
{
    if (mRows.isOfReference(row)) {
        return role == Qt::ForegroundRole ? QVariant(QColor(Qt::gray)) : QVariant();
    }
    const RecordEvent* event = mRows.event(row);
    const Episode* episode = mRows.episode(row);
    const QColor color = column == TimeColumn   ? TimeCellColor
                         : column != TextColumn ? QColor()
                         : event != nullptr     ? event->color
                         : episode != nullptr   ? episode->color
                                                : QColor();
    return role == Qt::BackgroundRole ? backgroundOf(color) : foregroundOn(color);
}

/// Numbers by their value, all else by its text.
QVariant EventModel::sortKey(int row, int column) const
{
    const Episode* episode = mRows.episode(row);
    if (column == TimeColumn) {
        return data(index(row, TimeColumn), TimeRole);
    }
    if (column == TextColumn) {
        return textAt(row, column);
    }
    if (episode == nullptr) {
        return {};
    }
    const bool hasPeak = episode->peak.has_value();
    switch (column) {
    case SeverityColumn:
        return episode->state;
    case UntilColumn:
        return episode->end - mRows.shift(row);
    case DurationColumn:
        return episode->duration();
    case PeakColumn:
        return hasPeak ? QVariant(episode->peak->value) : QVariant();
    default:
        return hasPeak ? QVariant(episode->peak->below.value_or(episode->peak->threshold))
                       : QVariant();
    }
}

QVariant EventModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
        return textAt(row, index.column());
    case SortRole:
        return sortKey(row, index.column());
    case StateRole: {
        const Episode* episode = mRows.episode(row);
        return episode != nullptr ? QVariant(episode->state) : QVariant();
    }
    case TimeRole: {
        const RecordEvent* event = mRows.event(row);
        const Episode* episode = mRows.episode(row);
        if (index.column() != TimeColumn || (event == nullptr && episode == nullptr)) {
            return {};
        }
        return (event != nullptr ? event->time : episode->start - mRows.shift(row)) * 1000.0;
    }
    case Qt::ToolTipRole: {
        const RecordEvent* event = mRows.event(row);
        return event != nullptr && index.column() == TextColumn ? event->text : QVariant();
    }
    case Qt::BackgroundRole:
    case Qt::ForegroundRole:
        return color(row, index.column(), role);
    case Qt::TextAlignmentRole:
        return index.column() > SeverityColumn ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter))
                                               : QVariant();
    case Qt::FontRole:
        if (mRows.isHeading(row)) {
            QFont bold;
            bold.setBold(true);
            bold.setPixelSize(11);
            return bold;
        }
        return {};
    default:
        return {};
    }
}

QVariant EventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 &&
        section < columnCount()) {
        const QString titles[] = {tr("Time"),     mTitle,     tr("Severity"), tr("Until"),
                                  tr("Duration"), tr("Peak"), tr("Threshold")};
        return titles[section];
    }
    if (orientation == Qt::Horizontal && role == Qt::FontRole) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return {};
}

Qt::ItemFlags EventModel::flags(const QModelIndex& index) const
{
    return index.isValid() && mRows.isHeading(index.row()) ? Qt::ItemIsEnabled
                                                           : QAbstractTableModel::flags(index);
}

} // namespace TARN
