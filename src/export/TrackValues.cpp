#include "export/TrackValues.h"

#include <cmath>

namespace TARN {

TrackValues::TrackValues(const ExportInput& input, const ProfileParameter& parameter)
    : mSeries(input.series(parameter)),
      mGaps(mSeries.gapRule([&input] { return input.flight->silences(input.offset); })),
      mTitle(parameter.title().toStdString()),
      mIsNumber(mSeries.decoder().isNumeric() && parameter.enumId == 0)
{}

const std::string& TrackValues::at(double time)
{
    static const std::string none;
    while (mNext < mSeries.size() && mSeries.time(mNext) <= time) {
        ++mNext;
    }
    if (mNext == 0 || !isHeld(time)) {
        return none;
    }
    const RecordEntry& entry = mSeries.entry(mNext - 1);
    if (&entry != mRead) {
        mRead = &entry;
        mText.clear();
        if (!mIsNumber || std::isfinite(mSeries.decoder().toDouble(entry, true))) {
            mSeries.decoder().appendText(entry, mText);
        }
    }
    return mText;
}

bool TrackValues::isHeld(double time) const
{
    const double from = mSeries.time(mNext - 1);
    const double to = mNext < mSeries.size() ? mSeries.time(mNext) : time;
    return time == from || !mGaps.isGap(from, to);
}

std::vector<TrackValues> trackValues(const ExportInput& input, Progress& progress)
{
    std::vector<TrackValues> values;
    for (const ProfileParameter* parameter : input.selection.parameters(*input.flight->profile())) {
        if (!progress.stopRequested() && !input.series(*parameter).empty()) {
            values.emplace_back(input, *parameter);
        }
    }
    return values;
}

} // namespace TARN
