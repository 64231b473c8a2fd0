#include "report/ReportTrack.h"

#include "base/ClockTime.h"
#include "graph/GraphPicture.h"
#include "track/HeightDrawing.h"
#include "track/PaintedTrack.h"
#include "track/SvgTrack.h"
#include "track/TrackDrawing.h"
#include "track/TrackSymbols.h"

#include <QtCore/QCoreApplication>

#include <cmath>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct ReportTrackTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReportTrack)
};

/// The part of the path that is reported, as large as it can be.
class TrackFigure
{
public:
    explicit TrackFigure(const TrackScene& scene)
        : mScene(scene), mPanes(Size, hasHeights()),
          mHeights(scene, HeightProfile::Time, mPanes.heights)
    {
        mView.area = mPanes.chart;
        mView.fit(scene.ground->path.bounds());
    }

    ReportFigure figure(const QString& label) const
    {
        return {Size,
                [this, label](int number) {
                    SvgTrack canvas(Size, label, number);
                    draw(canvas);
                    return canvas.end();
                },
                [this](QPainter& painter) {
                    PaintedTrack canvas(painter, graphFont());
                    draw(canvas);
                }};
    }

private:
    static constexpr QSizeF Size{ReportPages::Width, 600.0};

    bool hasHeights() const
    {
        const PositionTrack& track = mScene.ground->track;
        for (std::size_t k = 0; k < track.size(); ++k) {
            if (std::isfinite(track.altitude(k))) {
                return true;
            }
        }
        return false;
    }

    void draw(TrackCanvas& canvas) const
    {
        TrackDrawing drawing(mScene, mStyle, canvas);
        drawing.draw(mView);
        drawKey(mScene, mStyle, mPanes.key, canvas);
        if (mHeights.isShown()) {
            const double top = mPanes.key.bottom();
            HeightDrawing(mScene, mStyle, mHeights, canvas)
                .draw({0.0, top, Size.width(), Size.height() - top});
        }
    }

    const TrackScene& mScene;
    TrackStyle mStyle;
    TrackPanes mPanes;
    HeightChart mHeights;
    TrackView mView;
};

} // namespace

void writeTrack(const ReportMatter& matter, ReportPages& pages, Progress& progress)
{
    const Flight& flight = matter.flight();
    TrackScene scene;
    scene.ground = std::make_shared<TrackGround>(flight.positions(matter.shown.offset, progress));
    if (scene.empty() || progress.stopRequested()) {
        return;
    }
    scene.marks = std::make_shared<TrackMarks>(
        marksOf(matter.troubles, scene.ground->track, scene.ground->projection));
    scene.colors = std::make_shared<TrackColors>(
        TrackColors::ofStates(scene.ground->track, matter.troubles.limits));
    const TimeRange whole = flight.range(matter.shown.offset);
    if (matter.range.start > whole.start || matter.range.stop < whole.stop) {
        scene.range = matter.range;
    }
    pages.heading(ReportTrackTexts::tr("Where it happened"));
    const QString words =
        ReportTrackTexts::tr("The path of the flight from above, %1 to %2")
            .arg(clockText(scene.ground->track.time(0)),
                 clockText(scene.ground->track.time(scene.ground->track.size() - 1)));
    const TrackFigure figure(scene);
    pages.figure(words, {figure.figure(words)});
}

} // namespace TARN
