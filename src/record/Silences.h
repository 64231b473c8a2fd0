#pragma once

#include <vector>

namespace TARN {

class RecordData;

/// The stretches of more than ten seconds in which a recording has no sample of anything, with
/// the time offset.
class Silences
{
public:
    static constexpr double Shortest = 10.0; ///< seconds; longer ones count

    struct Stretch
    {
        double from; ///< time of the last sample before it, seconds
        double to;   ///< time of the first sample after it
    };

    Silences() = default;
    Silences(const RecordData& data, double offset);

    /// By time.
    const std::vector<Stretch>& stretches() const { return mStretches; }

    /// Whether one of them lies between two times.
    bool isWithin(double from, double to) const;

private:
    std::vector<Stretch> mStretches;
};

} // namespace TARN
