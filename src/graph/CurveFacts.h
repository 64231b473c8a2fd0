#pragma once

#include "flight/Flight.h"
#include "graph/GraphTypes.h"

#include <optional>
#include <vector>

namespace TARN {

/// What the profile says of a curve beside its numbers: thresholds, states, words. Keeps the
/// flight. Reading is safe from any number of threads.
class CurveFacts
{
public:
    /// A value of the threshold, as readings are compared with it.
    struct Level
    {
        double value;
        int state;
        std::optional<GraphColor> color; ///< nothing where the profile names none
    };

    /// \p series of the flight, whose order of time is known, and where it has no value.
    CurveFacts(std::shared_ptr<const Flight> flight, Series series, GapRule gaps);

    const ProfileParameter& parameter() const { return mSeries.parameter(); }
    const Series& series() const { return mSeries; }

    /// Whether its numbers are of single precision as they were sent.
    bool isSingle() const { return mSeries.decoder().isSingle(); }

    /// In document order, in which they are meant to ascend.
    const std::vector<Level>& levels() const { return mLevels; }

    /// Colour of the warning or limit that the sample which holds at a time stands for. Nothing
    /// where none holds, where it is normal and where the profile names no colour.
    std::optional<GraphColor> alertAt(double time) const;

    /// Whether samples are states that have names.
    bool hasWords() const { return mHasWords; }

    /// Number and name of the state that holds at a time, "3: RUNNING"; empty where none does.
    QString wordsAt(double time) const;

private:
    const RecordEntry* holdingAt(double time) const;

    std::shared_ptr<const Flight> mFlight;
    Series mSeries;
    GapRule mGaps;
    std::vector<Level> mLevels;
    bool mHasWords;
};

} // namespace TARN
