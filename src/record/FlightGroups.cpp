#include "record/FlightGroups.h"

#include "record/TimeRange.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <tuple>

namespace TARN {

namespace {

constexpr double Minute = 60.0; // seconds

struct Recording
{
    QString path;
    const RecordInfo* info;
    bool isHigh;
};

/// Recordings of one side of the offset that go on one after the other.
using Chain = std::vector<Recording>;

bool isOfSameUnits(const RecordInfo& a, const RecordInfo& b)
{
    return a.ecuSerialNumber == b.ecuSerialNumber && a.engineSerialNr == b.engineSerialNr;
}

/// Seconds from one header's date to the other's; nothing where one has none.
std::optional<double> datesApart(const RecordInfo& from, const RecordInfo& to)
{
    return from.dateTime.isValid() && to.dateTime.isValid()
               ? std::optional(static_cast<double>(from.dateTime.secsTo(to.dateTime)))
               : std::nullopt;
}

bool goesOn(const Recording& before, const Recording& next)
{
    constexpr double Allowed = 1.0; // seconds; buses are buffered apart
    const RecordInfo& a = *before.info;
    const RecordInfo& b = *next.info;
    const double pause = b.startTime - a.stopTime;
    const bool isDated = a.dateTime.isValid() || b.dateTime.isValid();
    const auto apart = datesApart(a, b);
    const bool fits = apart ? std::fabs(*apart - (b.startTime - a.startTime)) <= Minute : !isDated;
    return before.isHigh == next.isHigh && isOfSameUnits(a, b) && pause >= -Allowed &&
           pause <= Minute && fits;
}

TimeRange timesOf(const Chain& chain)
{
    return {chain.front().info->startTime, chain.back().info->stopTime};
}

bool isOtherSide(const Chain& low, const Chain& high)
{
    const TimeRange a = timesOf(low);
    const TimeRange b = timesOf(high);
    const double lasts = std::max(a.stop, b.stop) - std::min(a.start, b.start);
    const auto apart = datesApart(*low.front().info, *high.front().info);
    return a.start <= b.stop + Minute && b.start <= a.stop + Minute &&
           (!apart || std::fabs(*apart) <= lasts);
}

/// By date and start, so that the next of a flight stands behind it.
std::vector<Recording> sorted(const CardInfo& card)
{
    std::vector<Recording> all;
    for (const auto& [path, info] : card.records) {
        all.push_back({path, &info, isHighFile(path)});
    }
    std::ranges::stable_sort(all, {}, [](const Recording& recording) {
        const RecordInfo& info = *recording.info;
        return std::tuple(recording.isHigh, info.dateTime.isValid(),
                          info.dateTime.isValid() ? info.dateTime.toSecsSinceEpoch() : 0,
                          info.startTime);
    });
    return all;
}

std::vector<Chain> chainsOf(const CardInfo& card)
{
    std::vector<Chain> chains;
    for (const Recording& recording : sorted(card)) {
        const bool isEmpty = recording.info->samples < 1 || recording.info->unreadable;
        const auto before = std::ranges::find_if(chains, [&](const Chain& chain) {
            return !isEmpty && chain.back().info->samples > 0 && goesOn(chain.back(), recording);
        });
        if (before != chains.end()) {
            before->push_back(recording);
        } else {
            chains.push_back({recording});
        }
    }
    return chains;
}

} // namespace

std::vector<FlightGroup> flightGroups(const CardInfo& card)
{
    std::vector<Chain> chains = chainsOf(card);
    std::vector<FlightGroup> groups;
    std::vector<Chain> lows;
    const auto add = [](FlightGroup& group, const Chain& chain) {
        std::ranges::transform(chain, std::back_inserter(group), &Recording::path);
        std::ranges::sort(group);
    };
    for (const Chain& chain : chains) { // those of the other side come last
        const bool isAlone = !chain.front().isHigh || chain.front().info->samples < 1;
        const auto low = std::ranges::find_if(lows, [&](const Chain& of) {
            return !isAlone && of.front().info->samples > 0 && isOtherSide(of, chain);
        });
        if (low != lows.end()) {
            add(groups[static_cast<std::size_t>(low - lows.begin())], chain);
            continue;
        }
        add(groups.emplace_back(), chain);
        lows.push_back(chain);
    }
    std::ranges::sort(groups);
    return groups;
}

bool belongTogether(const std::list<QString>& files, const CardInfo& card)
{
    const std::set<QString> listed = [&] {
        std::set<QString> paths(files.begin(), files.end());
        std::erase_if(paths, [&](const QString& path) { return !card.records.contains(path); });
        return paths;
    }();
    const auto groups = flightGroups(card);
    return std::ranges::count_if(groups, [&](const FlightGroup& group) {
               return std::ranges::any_of(
                   group, [&](const QString& path) { return listed.contains(path); });
           }) <= 1;
}

} // namespace TARN
