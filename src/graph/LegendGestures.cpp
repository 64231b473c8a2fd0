#include "graph/LegendGestures.h"

#include "graph/GraphActions.h"

#include <utility>

namespace TARN {

void LegendGestures::press(unsigned curve, QPointF position)
{
    mCurve = curve;
    mStart = position;
    mIsDragging = false;
}

void LegendGestures::move(QPointF position, std::optional<unsigned> over)
{
    constexpr double Still = 5.0; // pixels that no hand keeps from moving
    mIsDragging = mIsDragging || (position - mStart).manhattanLength() > Still;
    if (mCurve && mIsDragging && over && *over != *mCurve) {
        mModel.curves().moveTo(*mCurve, *over);
        mModel.curvesChanged();
    }
}

void LegendGestures::release()
{
    const auto curve = std::exchange(mCurve, std::nullopt);
    if (!curve) {
        return;
    }
    if (std::exchange(mIsDragging, false)) {
        tellLooks(mModel);
    } else {
        toggleCurve(mModel, *curve);
    }
}

} // namespace TARN
