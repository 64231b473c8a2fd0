#pragma once

#include "graph/GraphLayout.h"
#include "graph/GraphNotes.h"
#include "graph/TimeWindow.h"
#include "record/TimeRange.h"

#include <QtCore/QObject>

namespace TARN {

/// What a graph shows beside its curves.
struct GraphHints
{
    GraphNotes notes;                ///< what went wrong meanwhile
    std::optional<unsigned> pointed; ///< the curve that the user pointed at last, by index
    bool hasReference = false;       ///< another flight lies beside the curves
};

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

    /// What is shown beside the curves, to be changed; emit changed() then.
    GraphHints& hints() { return mHints; }
    const GraphHints& hints() const { return mHints; }

    /// The visible time, to be moved; call windowChanged() then.
    TimeWindow& window() { return mWindow; }
    const TimeWindow& window() const { return mWindow; }
    void windowChanged();

    /// Where it all lies, which a paint brings up to date.
    GraphLayout& layout() { return mLayout; }
    const GraphLayout& layout() const { return mLayout; }

    void setDisplayMode(eDisplayMode mode);
    void setGraphMode(eGraphMode mode);
    eGraphMode graphMode() const { return mGraphMode; }
    void setCursorMode(eCursorMode mode) { mCursorMode = mode; }
    eCursorMode cursorMode() const { return mCursorMode; }

    void setMarker(double start, double stop);
    const TimeRange& markers() const { return mMarkers; } ///< stop before start while being dragged
    void zoomToMarker();
    double cursor() const { return mCursor; }
    /// Moves the cursor, and in centre mode the window with it, if it \p mayFollow.
    void setCursorPosition(double time, bool mayFollow = true);

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
    GraphHints mHints;
    double mCursor = 0.0;
    eGraphMode mGraphMode = GraphAutomatic;
    eCursorMode mCursorMode = CursorFloating;
};

} // namespace TARN
