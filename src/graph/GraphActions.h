#pragma once

#include "graph/GraphModel.h"

namespace TARN {

// What people do to a graph, by whatever key, button or gesture.

/// All of the time, and Y ranges as the curves have them.
void showAll(GraphModel& model);
/// Half a minute before and after a time.
void zoomToMinute(GraphModel& model, double time);

/// Through the windows that were left by zooms.
void goBack(GraphModel& model);
void goForth(GraphModel& model);

/// Points at a curve, or at none; in single mode its thresholds are shown.
void setPointed(GraphModel& model, std::optional<unsigned> curve);
/// Points at the shown curve whose value at a time is nearest to a pixel row, where one is near;
/// in split mode at that of the strip there.
void pointAt(GraphModel& model, double time, double y);

/// Hides a curve, or shows it again.
void toggleCurve(GraphModel& model, unsigned curve);
/// Only one curve is shown; all of them again.
void showOnly(GraphModel& model, unsigned curve);
void showAllCurves(GraphModel& model);

/// To be called after the user made curves look different.
void tellLooks(GraphModel& model);

} // namespace TARN
