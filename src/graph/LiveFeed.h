#pragma once

#include "graph/GraphModel.h"

namespace TARN {

/// Feeds a graph with samples that come one by one, in the order of time, instead of those of a
/// recording: in automatic mode the window goes along, and lines reach the current time.
class LiveFeed
{
public:
    /// \p model lives as long.
    explicit LiveFeed(GraphModel& model) : mModel(model) {}

    /// Moves the current time, and in automatic mode the window that ends there; what is no
    /// number is ignored.
    void setTime(double time);
    /// Adds a sample at the current time; ignored before the first setTime. A time that falls
    /// leaves out this sample and the one before it, with a diagnostic.
    void putValue(unsigned i, double value);
    /// Before a paint: in automatic mode the last value of each line holds until now.
    void holdLastValues();
    /// Whether the time was moved since the last paint.
    bool timeChanged() const { return mTimeChanged; }

private:
    GraphModel& mModel;
    double mTime = 0.0;
    bool mTimeChanged = false;
    bool mTimeValid = false;
};

} // namespace TARN
