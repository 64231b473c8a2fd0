#pragma once

#include "export/Exporter.h"

#include <string>
#include <vector>

namespace TARN {

/// What one parameter shows at times that ascend: the text of its last sample, held until the next
/// one but not across a gap. What is no number or infinite is no value: readers of numbers refuse
/// it.
class TrackValues
{
public:
    TrackValues(const ExportInput& input, const ProfileParameter& parameter);

    /// With its unit.
    const std::string& title() const { return mTitle; }
    /// Whether all texts are numbers.
    bool isNumber() const { return mIsNumber; }

    /// Empty where there is no value. Valid until the next call.
    const std::string& at(double time);
    /// The next time may be before the last one.
    void restart() { mNext = 0; }

private:
    bool isHeld(double time) const;

    Series mSeries;
    GapRule mGaps;
    std::string mTitle;
    bool mIsNumber;
    std::size_t mNext = 0;              ///< first sample after the last time
    const RecordEntry* mRead = nullptr; ///< whose text that is
    std::string mText;
};

/// Of the selected parameters that have samples.
std::vector<TrackValues> trackValues(const ExportInput& input, Progress& progress);

} // namespace TARN
