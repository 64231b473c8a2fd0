#pragma once

#include "record/RecordInfo.h"

#include <cstddef>
#include <vector>

namespace TARN {

/// What is odd about the times of one file's samples. They are judged in file order, each against
/// the last possible one before it: a time is impossible when it is more than a second earlier or
/// more than a day later. Where the next sample agrees with an impossible one, the clock itself
/// has jumped: that counts once, and what follows is judged by the new time.
struct TimeFindings
{
    std::size_t impossibleTimes = 0;
    std::size_t firstImpossible = 0; ///< number of the first such sample in the file, from 1
    std::size_t gaps = 0;            ///< steps of more than ten seconds between possible times
    double longestGap = 0.0;         ///< seconds
    double longestGapStart = 0.0;    ///< seconds on the recording's clock
};

/// What could be read of one file.
struct FileIntegrity
{
    RecordInfo info;               ///< the file as a card lists it
    std::size_t samples = 0;       ///< read
    std::size_t unread = 0;        ///< promised by the file's size, not to be had when it was read
    std::size_t otherChannels = 0; ///< samples of channels other than 0 and 1
    double earliest = 0.0;         ///< time of any sample read, seconds; 0 without one
    double latest = 0.0;
    TimeFindings found;
};

/// What could be read of a recording.
struct RecordIntegrity
{
    std::vector<FileIntegrity> files; ///< those that could be opened, in the order of reading
    QString damagedOffset; ///< path of an Offset.xml that is there but can't be read; else empty
};

} // namespace TARN
