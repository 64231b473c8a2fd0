#pragma once

#include "flight/Job.h"
#include "flight/Session.h"
#include "track/TrackScene.h"

namespace TARN {

/// Makes what the chart of a track shows, beside the event loop.
class TrackLoader : public QObject
{
    Q_OBJECT

public:
    explicit TrackLoader(QObject* parent = nullptr);

    const TrackScene& scene() const { return mScene; }
    /// Whether the path is being made; marks and colours follow it.
    bool isBusy() const { return mGroundJob.isRunning(); }
    /// Memory did not suffice for the path.
    bool isShort() const { return mIsShort; }

    /// Another flight, null for none, at a time offset. All that was there is gone at once, with
    /// what was told of it.
    void load(std::shared_ptr<const Flight> flight, double offset);

    /// What went wrong in the flight at the offset, null while nobody knows.
    void setTroubles(std::shared_ptr<const Troubles> troubles);

    /// What the path is coloured by.
    struct Coloring
    {
        enum Kind
        {
            Nothing,
            States,
            Values
        };

        Kind kind = Nothing;
        const ProfileParameter* parameter = nullptr; ///< of the flight's profile, for its values
    };
    void setColoring(const Coloring& coloring);

    /// To be told from the rest.
    void setRange(const TimeRange& range);

Q_SIGNALS:
    void changed();

private:
    struct Overlay
    {
        std::shared_ptr<const TrackMarks> marks;
        std::shared_ptr<const TrackColors> colors;
    };

    void makeOverlay();

    std::shared_ptr<const Flight> mFlight;
    double mOffset = 0.0;
    std::shared_ptr<const Troubles> mTroubles;
    Coloring mColoring;
    TrackScene mScene;
    bool mIsShort = false;
    Job<std::shared_ptr<const TrackGround>> mGroundJob;
    Job<Overlay> mOverlayJob;
};

} // namespace TARN
