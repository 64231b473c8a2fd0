#pragma once

#include <QtCore/QString>

#include <cstdint>
#include <vector>

namespace TARN {

/// The tick rule. For an axis of \p length pixels from \p min to \p max that should have a tick
/// every \p spacing pixels: the \p step between ticks, one of 1, 2, 5 and 10 times a power of
/// ten, and in how many parts each is divided. A step of -1, and no \p subdivisions, where not
/// one tick fits.
void getAutoPara(float min, float max, float length, float spacing, float* step, int* subdivisions);

/// The printf format for labels that stand \p step apart.
void getAutoFormat(float step, QString& format);

/// First-order low-pass: feeds \p input, which held for \p timeStep, into the filter's \p state;
/// \p timeConstant in the same unit.
void pt1(float input, float timeConstant, float timeStep, double* state);

struct GraphTick
{
    double value;
    bool major; ///< may take a label
};

/// The ticks of an axis, ascending.
struct GraphTicks
{
    std::vector<GraphTick> ticks;
    double step = 0.0; ///< between major ticks; 0 when there are none

    /// Of values, by the tick rule.
    static GraphTicks ofValues(double min, double max, double length, double spacing);

    /// Of clock times, major ticks at least \p spacing pixels apart: at whole decimal parts of
    /// a second, at 1, 2, 5, 10, 15 and 30 seconds and minutes, then at hours.
    static GraphTicks ofTimes(double min, double max, double length, double spacing);

private:
    void fill(double min, double max, int parts);
};

/// "h:mm:ss" of a tick; between whole seconds with the decimals that \p step needs. Empty before
/// time 0.
QString timeLabel(double time, double step);

/// A value tick's label in the format of its step; in exponent notation where that is too long.
QString valueLabel(double value, double step);

/// An end of a range, with as many digits as tell it from the other: so many of the extent.
QString rangeLabel(double value, double extent, int digits = 3);

} // namespace TARN
