#pragma once

#include "display/GraphTypes.h"

#include <span>
#include <vector>

namespace TARN {

/// What a graph shows, without the drawing: its curves, its ranges and their modes. Curves are
/// known by index; an index that is not below count() is ignored. Times are seconds. Frames are
/// rebuilt when they are next asked for, so that any number of changes between two paints costs
/// one rebuild. What is no number is ignored where a time or a range is set.
class GraphModel
{
public:
    static constexpr unsigned MaxCurves = 30;

    GraphModel();

    // Curves.

    /// Starts afresh with \p n curves, at least 1 and at most 30, in the user's colours.
    void setMaxParameters(unsigned n);
    unsigned count() const { return static_cast<unsigned>(mCurves.size()); }
    std::vector<ParStruct>& curves() { return mCurves; }
    const std::vector<ParStruct>& curves() const { return mCurves; }
    bool hasSamples() const; ///< of an active curve

    /// Curve \p i, or null when there is none.
    ParStruct* curve(unsigned i) { return i < count() ? &mCurves[i] : nullptr; }
    const ParStruct* curve(unsigned i) const { return i < count() ? &mCurves[i] : nullptr; }
    void setActive(unsigned i, bool active);

    // Samples.

    /// Moves the current time, and in automatic mode the window that ends there.
    void setTime(double time);

    /// Adds a sample at the current time; ignored before the first setTime.
    void putValue(unsigned i, double value);

    /// setTime and putValue for each of equally many times and values, at once.
    void putSeries(unsigned i, std::span<const double> times, std::span<const double> values);

    /// The value of a curve at a time, interpolated. False and 0 where it has none.
    bool getValue(unsigned i, double time, double& value) const;
    /// Times of a curve's first and last sample; both 0 when it is empty.
    void getParameterRangeX(unsigned i, double& first, double& last) const;
    /// Smallest and largest value ever put into a curve.
    void getParameterRangeY(unsigned i, double& min, double& max) const;

    /// Empties every curve and takes the markers and the Y range back.
    void clear();

    // Ranges, modes, cursor and markers.

    void setXmin(double time);
    void setXmax(double time);
    void setXrange(double width); ///< from xmin in manual mode, to xmax in automatic mode
    void setT0(double time);      ///< moves the window to start there
    void setYmin(double value);
    void setYmax(double value);
    void setAutoScaleY(bool on) { mAutoScaleY = on; }
    void setGraphMode(eGraphMode mode);
    void setDisplayMode(eDisplayMode mode) { mDisplayMode = mode; }
    void setCursorMode(eCursorMode mode) { mCursorMode = mode; }
    void setMarker(double start, double stop);
    void setCursorPosition(double time);
    /// Moves the cursor and leaves the window, in centre mode too.
    void setCursor(double time);
    void zoomToMarker();

    /// Scales the window about a time; leaves the frames as they are.
    void zoomAbout(double time, double factor);
    /// Shows just this window.
    void setWindow(double xmin, double xmax);

    const GraphView& view() const { return mView; }
    eGraphMode graphMode() const { return mGraphMode; }
    eDisplayMode displayMode() const { return mDisplayMode; }
    eCursorMode cursorMode() const { return mCursorMode; }
    double markStart() const { return mMarkers[0]; }
    double markStop() const { return mMarkers[1]; }
    double cursor() const { return mCursor; }
    double currentTime() const { return mTime; }
    double firstTime() const { return mFirstTime; } ///< of all curves, as of the last paint
    double lastTime() const { return mLastTime; }   ///< of all curves, as of the last paint

    // The steps of a paint, in this order.

    /// Places the plot area in a widget of this size, left of it what labels needed last.
    void setSize(double width, double height);
    /// Takes over the scale found by the last paint and brings the frames up to date.
    void calcFrame();
    void layoutStrips();
    /// What drawing this curve would show; its frames outside the window are dropped.
    void updateVisible(ParStruct& curve);
    /// Takes the scale for the next paint from what was drawn, given the widest value label.
    void finishPaint(double widestLabel);

    /// Whether the next paint would differ from the last one, nothing being changed.
    bool isSettled() const { return mSettled; }

    /// Whether there are new samples since the last paint.
    bool timeChanged() const { return mTimeChanged; }

    /// Marks the frames as out of date.
    void recalcFrameBuffer() { mStale = true; }
    /// The frames of a curve of this model, up to date.
    std::span<const FrameType> frames(unsigned i);

    /// The active curve whose strip holds a pixel row; the first active one when none does.
    /// Null when none is active.
    ParStruct* getParaFromPos(double y);

private:
    void updateFrames();
    FrameWindow window() const { return {mView.xmin, mView.xmax, mView.pixelTime()}; }
    void changeWindow(double xmin, double xmax);
    void placePlot(double left);

    std::vector<ParStruct> mCurves;
    GraphView mView;
    double mWidth = 0.0; ///< of the widget, pixels
    double mTime = 0.0;
    bool mTimeChanged = false;
    bool mTimeValid = false;
    double mMarkers[2] = {0.0, 0.0};
    double mCursor = 0.0;
    eGraphMode mGraphMode = GraphAutomatic;
    eDisplayMode mDisplayMode = DisplaySingle;
    eCursorMode mCursorMode = CursorFloating;
    double mFirstTime = 0.0;
    double mLastTime = 0.0;
    bool mAutoScaleY = true;
    bool mRecalcPending = false; ///< frames are rebuilt when the time is next set
    bool mStale = true;          ///< frames are rebuilt when they are next needed
    double mFrameWidth = 0.0;    ///< plot width that the frames were built for
    double mAutoMin = 0.0;       ///< Y range found by the last paint
    double mAutoMax = 1.0;
    bool mSettled = false;
};

} // namespace TARN
