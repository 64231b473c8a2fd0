#pragma once

#include "base/Numbers.h"

#include <QtCore/QString>
#include <QtCore/QTime>

#include <cstdint>

namespace TARN {

/// Whole milliseconds of \p seconds, truncated.
inline std::int64_t millisecondsOf(double seconds)
{
    return truncatedTo<std::int64_t>(seconds * 1000.0);
}

/// Tenths of a second as event lists count them, rounded.
inline int tenthsOf(double seconds)
{
    return truncatedTo<int>(seconds * 10.0 + 0.5);
}

/// Tenths of a second as table rows and event look-ups count them, rounded; 0 before time 0.
inline std::uint32_t timeKeyOf(double seconds)
{
    return truncatedTo<std::uint32_t>(seconds * 10.0 + 0.5);
}

/// Milliseconds on the recording's clock as a time of day, starting again at midnight.
inline QTime clockTime(std::int64_t milliseconds)
{
    constexpr std::int64_t Day = 86'400'000;
    const std::int64_t inDay = milliseconds % Day;
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(inDay < 0 ? inDay + Day : inDay));
}

/// "hh:mm:ss" of a time in seconds.
inline QString clockText(double seconds)
{
    return clockTime(millisecondsOf(seconds)).toString("hh:mm:ss");
}

/// "hh:mm:ss.zzz" of a time in seconds.
inline QString clockTextWithMilliseconds(double seconds)
{
    return clockTime(millisecondsOf(seconds)).toString("hh:mm:ss.zzz");
}

} // namespace TARN
