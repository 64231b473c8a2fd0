#pragma once

#include "graph/GraphLayout.h"
#include "graph/GraphNotes.h"
#include "graph/TimeWindow.h"
#include "record/TimeRange.h"

#include <QtCore/QObject>

namespace TARN {

/// What a graph shows, without the drawing: its curves, the visible time, modes, cursor and
/// markers. Times are seconds; one that is no number is ignored.
class GraphModel : public QObject
{
    Q_OBJECT

public:
    explicit GraphModel(QObject* parent = nullptr);

    const CurveSet& curves() const { return mCurves; }
    /// To be changed; call curvesChanged() then, changed() if it was their looks only.
    CurveSet& curves() { return mCurves; }
    void curvesChanged();
    /// Empties every curve and takes the markers and the Y range back.
    void clear();

    /// What went wrong meanwhile.
    const GraphNotes& notes() const { return mNotes; }
    void setNotes(GraphNotes notes);

    /// The curve that the user pointed at last, by index, if he did: in single mode its thresholds
    /// are shown.
    std::optional<unsigned> pointed() const { return mPointed; }
    /// Points at the shown curve whose value at a time is nearest to a pixel row, in split mode at
    /// that of the strip there.
    void pointAt(double time, double y);
    void setPointed(std::optional<unsigned> curve);

    /// The visible time, to be moved; call windowChanged() then.
    TimeWindow& window() { return mWindow; }
    const TimeWindow& window() const { return mWindow; }
    void windowChanged();

    /// Where it all lies, which a paint brings up to date.
    GraphLayout& layout() { return mLayout; }
    const GraphLayout& layout() const { return mLayout; }

    void setYrange(double min, double max);
    void setAutoScaleY(bool on);
    void setDisplayMode(eDisplayMode mode);
    void setGraphMode(eGraphMode mode);
    eGraphMode graphMode() const { return mGraphMode; }
    void setCursorMode(eCursorMode mode) { mCursorMode = mode; }
    eCursorMode cursorMode() const { return mCursorMode; }

    /// The user made curves look different: hidden, coloured, ordered, of a range of their own.
    void looksChanged();
    /// Only one curve is shown; all of them again.
    void showOnly(unsigned curve);
    void showAllCurves();

    /// All of the time, and Y ranges as the curves have them.
    void showAll();
    /// Half a minute before and after a time.
    void zoomToMinute(double time);

    void setMarker(double start, double stop);
    const TimeRange& markers() const { return mMarkers; } ///< stop before start while being dragged
    void zoomToMarker();
    double cursor() const { return mCursor; }
    /// Moves the cursor, and in centre mode the window with it.
    void setCursorPosition(double time);
    /// Moves the cursor and leaves the window, in centre mode too.
    void setCursor(double time);

Q_SIGNALS:
    /// Something that is drawn.
    void changed();
    /// A mode that buttons show.
    void modeChanged();
    /// How curves look, by the user.
    void looksEdited();

private:
    CurveSet mCurves;
    GraphLayout mLayout;
    TimeWindow mWindow;
    TimeRange mMarkers;
    GraphNotes mNotes;
    std::optional<unsigned> mPointed;
    double mCursor = 0.0;
    eGraphMode mGraphMode = GraphAutomatic;
    eCursorMode mCursorMode = CursorFloating;
};

} // namespace TARN
