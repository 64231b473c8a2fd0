#pragma once

namespace TARN::Bench {

class Suite;

// The figures that need a display, one source for each subject.
void logbookWindowFigures(Suite& suite);
void paintFigures(Suite& suite);
void startFigures(Suite& suite);
void trackFigures(Suite& suite);
void windowFigures(Suite& suite);

} // namespace TARN::Bench
