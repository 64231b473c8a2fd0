#include "Week.h"

#include "Random.h"

#include <algorithm>
#include <chrono>

namespace TARN::Demo {

namespace {

constexpr std::uint64_t kLastWeek = 520;
// With more weeks of wear, cylinder 6 would come near its limit in the climb.
constexpr std::uint64_t kMostWear = 5;
constexpr double kLeastDelay = 12.0;         // s
constexpr double kMostDelay = 88.0;          // s
constexpr std::uint64_t kDelaySalt = 0x30C4; // spreads the first eight flights well apart

FlightDay dayOf(std::uint64_t week)
{
    FlightDay day;
    std::chrono::year_month_day first{std::chrono::year{day.year} / day.month / day.day};
    std::chrono::year_month_day date{std::chrono::sys_days{first} +
                                     std::chrono::weeks{static_cast<int>(week)}};
    day.year = static_cast<int>(date.year());
    day.month = static_cast<int>(static_cast<unsigned>(date.month()));
    day.day = static_cast<int>(static_cast<unsigned>(date.day()));
    return day;
}

double delayOf(std::uint64_t seed)
{
    double drawn = Random(seed ^ kDelaySalt).symmetric();
    double least = drawn < 0.0 ? -kLeastDelay : kLeastDelay;
    return least + drawn * (kMostDelay - kLeastDelay);
}

} // namespace

Week weekOf(std::uint64_t seed)
{
    if (seed < 2)
        return {};
    std::uint64_t week = std::min(seed - 1, kLastWeek);
    return {dayOf(week), delayOf(seed), static_cast<double>(std::min(week, kMostWear))};
}

} // namespace TARN::Demo
