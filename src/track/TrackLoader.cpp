#include "track/TrackLoader.h"

namespace TARN {

TrackLoader::TrackLoader(QObject* parent) : QObject(parent)
{
    mGroundJob.setOutOfMemory([this] {
        mIsShort = true;
        Q_EMIT changed();
    });
    mOverlayJob.setOutOfMemory([] {}); // the path is there without them
}

void TrackLoader::load(std::shared_ptr<const Flight> flight, double offset)
{
    mGroundJob.cancel();
    mOverlayJob.cancel();
    mFlight = std::move(flight);
    mOffset = offset;
    mIsShort = false;
    mTroubles = nullptr; // they and the parameter are of another flight
    mColoring = {};
    mScene.ground = nullptr;
    mScene.marks = nullptr;
    mScene.colors = nullptr;
    if (mFlight != nullptr) {
        mGroundJob.start(
            [flight = mFlight, offset](Progress& progress) {
                return std::make_shared<const TrackGround>(flight->positions(offset, progress));
            },
            [this](std::shared_ptr<const TrackGround> ground) {
                mScene.ground = std::move(ground);
                makeOverlay();
                Q_EMIT changed();
            });
    }
    Q_EMIT changed();
}

void TrackLoader::setTroubles(std::shared_ptr<const Troubles> troubles)
{
    mTroubles = std::move(troubles);
    makeOverlay();
}

void TrackLoader::setColoring(const Coloring& coloring)
{
    mColoring = coloring;
    makeOverlay();
}

void TrackLoader::setRange(const TimeRange& range)
{
    mScene.range = range;
    Q_EMIT changed();
}

void TrackLoader::makeOverlay()
{
    mOverlayJob.cancel();
    if (mScene.empty()) {
        return;
    }
    mOverlayJob.start(
        [flight = mFlight, offset = mOffset, ground = mScene.ground, troubles = mTroubles,
         coloring = mColoring](Progress& progress) {
            Overlay made;
            if (troubles != nullptr) {
                made.marks = std::make_shared<TrackMarks>(
                    marksOf(*troubles, ground->track, ground->projection));
            }
            if (coloring.kind == Coloring::Values) {
                made.colors = std::make_shared<TrackColors>(TrackColors::ofValues(
                    ground->track, *flight, offset, *coloring.parameter, progress));
            } else if (coloring.kind == Coloring::States && troubles != nullptr) {
                made.colors = std::make_shared<TrackColors>(
                    TrackColors::ofStates(ground->track, troubles->limits));
            }
            return made;
        },
        [this](Overlay made) {
            mScene.marks = std::move(made.marks);
            mScene.colors = std::move(made.colors);
            Q_EMIT changed();
        });
}

} // namespace TARN
