#pragma once

#include <QtGui/QSurfaceFormat>

namespace TARN {

/// What a graph is drawn in: the oldest kind of context, which has all that is drawn with.
QSurfaceFormat graphFormat();

/// Begins to load the graphics driver, on a thread of its own: it takes as long as to make the
/// window.
void loadGraphics();

/// Whether this display gives a context that a graph can be drawn in; waits for the driver. Asked
/// before a widget is made: one without a context stays blank.
bool canDrawGraph();

} // namespace TARN
