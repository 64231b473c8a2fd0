#pragma once

#include "graph/GraphModel.h"

#include <QtCore/QPointF>

namespace TARN {

/// The legend as the place to work on curves: a click hides one or shows it again, a drag puts it
/// where another one stands.
class LegendGestures
{
public:
    /// \p model lives as long.
    explicit LegendGestures(GraphModel& model) : mModel(model) {}

    /// The left button was pressed on the legend of a curve.
    void press(unsigned curve, QPointF position);
    /// Whether it is held there.
    bool isHeld() const { return mCurve.has_value(); }
    bool isDragging() const { return mIsDragging; }
    /// The mouse is over the legend, in split mode the strip, of a curve, if it is over one.
    void move(QPointF position, std::optional<unsigned> over);
    void release();

private:
    GraphModel& mModel;
    std::optional<unsigned> mCurve;
    QPointF mStart;
    bool mIsDragging = false;
};

} // namespace TARN
