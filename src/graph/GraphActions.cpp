#include "graph/GraphActions.h"

#include <cmath>

namespace TARN {

namespace {

/// The shown curve that is nearest to a place of the single plot; the one pointed at last where
/// none is near.
std::optional<unsigned> nearestCurve(const GraphModel& model, double time, double y)
{
    constexpr double Reach = 12.0; // pixels
    double nearest = Reach;
    std::optional<unsigned> found = model.hints().pointed;
    for (const unsigned k : model.curves().shown()) {
        const ParStruct& curve = *model.curves().curve(k);
        double value = 0.0;
        const bool hasValue = curve.samples().valueAt(time, value);
        const double distance = std::fabs(curve.strip.toPixel(value) - y);
        if (hasValue && distance < nearest) {
            nearest = distance;
            found = k;
        }
    }
    return found;
}

} // namespace

void showAll(GraphModel& model)
{
    model.layout().resetZoomY();
    model.window().showAll();
    model.windowChanged();
}

void zoomToMinute(GraphModel& model, double time)
{
    constexpr double Half = 30.0; // seconds
    model.window().remember();
    model.window().set(time - Half, time + Half);
    model.setGraphMode(GraphManual);
    model.windowChanged();
}

void goBack(GraphModel& model)
{
    if (model.window().back()) {
        model.windowChanged();
    }
}

void goForth(GraphModel& model)
{
    if (model.window().forth()) {
        model.windowChanged();
    }
}

void setPointed(GraphModel& model, std::optional<unsigned> curve)
{
    if (model.hints().pointed != curve) {
        model.hints().pointed = curve;
        Q_EMIT model.changed();
    }
}

void pointAt(GraphModel& model, double time, double y)
{
    if (model.layout().displayMode() == DisplaySingle) {
        setPointed(model, nearestCurve(model, time, y));
    } else if (const ParStruct* curve = model.curves().at(y)) {
        setPointed(model, model.curves().indexOf(*curve));
    }
}

void toggleCurve(GraphModel& model, unsigned curve)
{
    ParStruct& clicked = *model.curves().curve(curve);
    clicked.hidden = !clicked.hidden;
    tellLooks(model);
}

void showOnly(GraphModel& model, unsigned curve)
{
    for (ParStruct& other : model.curves().all()) {
        other.hidden = other.active && model.curves().indexOf(other) != curve;
    }
    tellLooks(model);
}

void showAllCurves(GraphModel& model)
{
    for (ParStruct& curve : model.curves().all()) {
        curve.hidden = false;
    }
    tellLooks(model);
}

void tellLooks(GraphModel& model)
{
    model.curvesChanged();
    Q_EMIT model.looksEdited();
}

} // namespace TARN
