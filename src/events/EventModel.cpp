#include "events/EventModel.h"

#include "base/CellColor.h"
#include "base/ClockTime.h"
#include "base/Numbers.h"

#include <QtGui/QFont>

#include <algorithm>
#include <map>

namespace TARN {

namespace {

/// A number of single precision in the shortest text that reads back as it.
QString shortText(const ProfileParameter& parameter, double value)
{
    constexpr int Digits = 12;
    const bool isSingle =
        parameter.dataType == DataType::Float || parameter.dataType == DataType::Nmea;
    std::string text;
    if (isSingle) {
        appendShortest(static_cast<float>(value), text);
    } else {
        appendGeneral(value, Digits, text);
    }
    const QString number = QString::fromStdString(text);
    return parameter.unit.isEmpty() ? number : number + " " + parameter.unit;
}

/// What the peak passed: a reader wants the bound that was left, not the far end of the band.
QString thresholdText(const Episode::Peak& peak)
{
    std::string text = peak.below ? "< " : "\xe2\x89\xa5 ";
    appendGeneral(peak.below.value_or(peak.threshold), 12, text);
    return QString::fromStdString(text);
}

} // namespace

EventModel::EventModel(const QString& title, bool hasEpisodes, QObject* parent)
    : QAbstractTableModel(parent), mTitle(title), mHasEpisodes(hasEpisodes)
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
    for (const Episode& episode : *mEpisodes) {
        if (!episode.isAnnounced()) {
            mUnannounced.push_back(&episode);
        }
        for (const std::size_t place : episode.announcedBy) {
            announced[{episode.parameter, place}] = &episode;
        }
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
    if (mEvents == nullptr) {
        return 0;
    }
    const auto after =
        std::ranges::upper_bound(*mEvents, timeKeyOf(time), {}, [](const RecordEvent& event) {
            return static_cast<std::uint32_t>(event.tenths);
        });
    return after == mEvents->begin() ? 0 : static_cast<int>(after - mEvents->begin() - 1);
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
    const double shift = flight.series(*parameter, offset).shift();
    return Place{parameter, event != nullptr ? event->time + shift : episode->start,
                 episode != nullptr && episode->peak ? std::optional(episode->peak->time)
                                                     : std::nullopt};
}

QString EventModel::textOf(const std::vector<int>& rows) const
{
    QStringList lines;
    const auto add = [&](const auto& cellOf) {
        QStringList cells;
        for (int column = 0; column < columnCount(); ++column) {
            cells += cellOf(column).toString().trimmed();
        }
        lines += cells.join('\t');
    };
    add([&](int column) { return headerData(column, Qt::Horizontal, Qt::DisplayRole); });
    for (const int row : rows) {
        add([&](int column) { return index(row, column).data(); });
    }
    return lines.join('\n') + "\n";
}

int EventModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid()) {
        return 0;
    }
    const std::size_t heading = mUnannounced.empty() ? 0 : 1;
    return static_cast<int>(eventCount() + heading + mUnannounced.size());
}

int EventModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : mHasEpisodes ? ThresholdColumn + 1 : TextColumn + 1;
}

bool EventModel::isHeading(int row) const
{
    return static_cast<std::size_t>(row) == eventCount();
}

const RecordEvent* EventModel::eventAt(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return place < eventCount() ? &(*mEvents)[place] : nullptr;
}

const Episode* EventModel::unannouncedAt(int row) const
{
    const std::size_t before = eventCount() + 1;
    const auto place = static_cast<std::size_t>(row);
    return place >= before ? mUnannounced[place - before] : nullptr;
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
    case UntilColumn:
        return clockTextWithMilliseconds(episode.end - shift);
    case DurationColumn:
        return tr("%1 s").arg(episode.duration(), 0, 'f', 1);
    case PeakColumn:
        return episode.peak ? shortText(*episode.parameter, episode.peak->value) : QString();
    case ThresholdColumn:
        return episode.peak ? thresholdText(*episode.peak) : QString();
    default:
        return {};
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
        return column == TextColumn ? tr("Out of range without an event") : QString();
    }
    if (column > TextColumn) {
        return episodeText(*episode, column, 0.0);
    }
    return column == TimeColumn
               ? clockTextWithMilliseconds(episode->start)
               : episode->device->name + " " + episode->parameter->name + " " +
                     (episode->state == StateLimit ? tr("at its limit") : tr("in warning"));
}

QVariant EventModel::color(int row, int column, int role) const
{
    QColor color = TimeCellColor;
    if (column > TimeColumn) {
        const RecordEvent* event = eventAt(row);
        const Episode* episode = episodeOf(row);
        color = event != nullptr && column == TextColumn ? event->color
                : event == nullptr && episode != nullptr && episode->peak && column == TextColumn
                    ? episode->peak->color
                    : QColor();
    }
    return role == Qt::BackgroundRole ? backgroundOf(color) : foregroundOn(color);
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
    case Qt::UserRole: {
        const RecordEvent* event = eventAt(row);
        const Episode* episode = unannouncedAt(row);
        return index.column() != TimeColumn || (event == nullptr && episode == nullptr)
                   ? QVariant()
                   : QVariant((event != nullptr ? event->time : episode->start) * 1000.0);
    }
    case Qt::ToolTipRole: {
        const RecordEvent* event = eventAt(row);
        return event != nullptr && index.column() == TextColumn ? event->text : QVariant();
    }
    case Qt::BackgroundRole:
    case Qt::ForegroundRole:
        return color(row, index.column(), role);
    case Qt::TextAlignmentRole:
        return index.column() > TextColumn ? QVariant(int(Qt::AlignRight | Qt::AlignVCenter))
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
        const QString titles[] = {tr("Time"),     mTitle,     tr("Until"),
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
