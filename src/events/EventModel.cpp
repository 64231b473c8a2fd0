#include "events/EventModel.h"

#include "base/CellColor.h"
#include "base/ClockTime.h"

#include <QtGui/QFont>

#include <algorithm>
#include <map>

namespace TARN {

EventModel::EventModel(EventKind kind, const QString& title, QObject* parent)
    : QAbstractTableModel(parent), mKind(kind), mTitle(title), mSeverities(severityWords(kind))
{}

void EventModel::setEvents(std::shared_ptr<const void> owner,
                           const std::vector<RecordEvent>* events)
{
    beginResetModel();
    mOwner = std::move(owner);
    mEvents = events;
    mEpisodes.reset();
    mUnannounced.clear();
    mOfEvents.clear();
    endResetModel();
}

void EventModel::setEpisodes(std::shared_ptr<const std::vector<Episode>> episodes)
{
    beginResetModel();
    mEpisodes = std::move(episodes);
    mUnannounced.clear();
    std::map<std::pair<const ProfileParameter*, std::size_t>, const Episode*> announced;
    static const std::vector<Episode> None;
    for (const Episode& episode : mEpisodes != nullptr ? *mEpisodes : None) {
        if (!episode.isAnnounced()) {
            mUnannounced.push_back(&episode);
        }
        for (const std::size_t place : episode.announcedBy) {
            announced[{episode.parameter, place}] = &episode;
        }
    }
    if (mKind == EventKind::Faults) { // in the order of the times that are shown
        std::ranges::stable_sort(mUnannounced, {}, [](const Episode* episode) {
            return episode->start - episode->shift;
        });
    }
    mOfEvents.assign(eventCount(), nullptr);
    for (std::size_t i = 0; i < eventCount(); ++i) {
        const auto found = announced.find({(*mEvents)[i].parameter, (*mEvents)[i].place});
        mOfEvents[i] = found != announced.end() ? found->second : nullptr;
    }
    endResetModel();
}

void EventModel::setAllDigits(bool on)
{
    beginResetModel();
    mAllDigits = on;
    endResetModel();
}

int EventModel::rowAt(double time) const
{
    const auto lastOf = [key = timeKeyOf(time)](const auto& rows, const auto& keyOf) {
        const auto after = std::ranges::upper_bound(rows, key, {}, keyOf);
        return after == rows.begin() ? 0 : static_cast<int>(after - rows.begin() - 1);
    };
    if (mKind == EventKind::Faults) {
        return lastOf(mUnannounced, [](const Episode* episode) {
            return timeKeyOf(episode->start - episode->shift);
        });
    }
    if (mEvents != nullptr) {
        return lastOf(*mEvents, [](const RecordEvent& event) {
            return static_cast<std::uint32_t>(event.tenths);
        });
    }
    return 0;
}

std::optional<EventModel::Place> EventModel::placeOf(int row, const Flight& flight,
                                                     double offset) const
{
    const RecordEvent* event = eventAt(row);
    const Episode* episode = episodeOf(row);
    if (event == nullptr && episode == nullptr) {
        return std::nullopt;
    }
    const ProfileParameter* parameter = event != nullptr ? event->parameter : episode->parameter;
    const double start =
        event != nullptr ? event->time + flight.series(*parameter, offset).shift() : episode->start;
    return Place{parameter, start,
                 episode != nullptr && episode->peak ? std::optional(episode->peak->time)
                                                     : std::nullopt};
}

int EventModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid()) {
        return 0;
    }
    return static_cast<int>(mUnannounced.empty() ? eventCount()
                                                 : firstUnannounced() + mUnannounced.size());
}

int EventModel::columnCount(const QModelIndex& parent) const
{
    const int last = mKind == EventKind::Limits ? ThresholdColumn : DurationColumn;
    return parent.isValid() ? 0 : last + 1;
}

const RecordEvent* EventModel::eventAt(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place < eventCount() ? &(*mEvents)[place] : nullptr;
}

const Episode* EventModel::unannouncedAt(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place >= firstUnannounced() ? mUnannounced[place - firstUnannounced()] : nullptr;
}

/// The episode that a row tells of; null where it tells of none.
const Episode* EventModel::episodeOf(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place < mOfEvents.size() ? mOfEvents[place] : unannouncedAt(row);
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

/// Seconds that the times of an episode without an event are shown without.
double EventModel::shownShift(const Episode& episode) const
{
    return mKind == EventKind::Faults ? episode.shift : 0.0;
}

QString EventModel::unannouncedText(const Episode& episode) const
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
    const Episode* episode = episodeOf(row);
    if (const RecordEvent* event = eventAt(row)) {
        if (column > TextColumn) {
            // Times of events carry no offset, and so the end does not either.
            return episode != nullptr ? episodeText(*episode, column, episode->shift) : QString();
        }
        return column == TimeColumn ? clockTextWithMilliseconds(event->time)
               : mAllDigits         ? event->text
                                    : event->shortText;
    }
    if (isHeading(row)) {
        return column != TextColumn         ? QString()
               : mKind == EventKind::Limits ? tr("Out of range without an event")
                                            : tr("On without an event");
    }
    const double shift = shownShift(*episode);
    return column == TimeColumn   ? clockTextWithMilliseconds(episode->start - shift)
           : column == TextColumn ? unannouncedText(*episode)
                                  : episodeText(*episode, column, shift);
}

QVariant EventModel::color(int row, int column, int role) const
{
    const RecordEvent* event = eventAt(row);
    const Episode* episode = episodeOf(row);
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
    const Episode* episode = episodeOf(row);
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
        return episode->end - (eventAt(row) != nullptr ? episode->shift : shownShift(*episode));
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
        const Episode* episode = episodeOf(row);
        return episode != nullptr ? QVariant(episode->state) : QVariant();
    }
    case TimeRole: {
        const RecordEvent* event = eventAt(row);
        const Episode* episode = unannouncedAt(row);
        if (index.column() != TimeColumn || (event == nullptr && episode == nullptr)) {
            return {};
        }
        return (event != nullptr ? event->time : episode->start - shownShift(*episode)) * 1000.0;
    }
    case Qt::ToolTipRole: {
        const RecordEvent* event = eventAt(row);
        return event != nullptr && index.column() == TextColumn ? event->text : QVariant();
    }
    case Qt::BackgroundRole:
    case Qt::ForegroundRole:
        return color(row, index.column(), role);
    case Qt::TextAlignmentRole:
        return index.column() > SeverityColumn ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter))
                                               : QVariant();
    case Qt::FontRole:
        if (isHeading(row)) {
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
    return index.isValid() && isHeading(index.row()) ? Qt::ItemIsEnabled
                                                     : QAbstractTableModel::flags(index);
}

} // namespace TARN
