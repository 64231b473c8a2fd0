#pragma once

namespace TARN::Bench {

/// Time from the start of the viewer's process until its window has painted, to that of a bare
/// window with an OpenGL widget. Both run with an empty home of their own.
double startRatio();

} // namespace TARN::Bench
