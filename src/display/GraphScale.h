#pragma once

#include <QtCore/QString>

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
    bool major;         ///< takes a label
    std::int64_t index; ///< of a major tick: value / step
};

/// The ticks of an axis, ascending.
struct GraphTicks
{
    std::vector<GraphTick> ticks;
    double step = 0.0; ///< between major ticks; 0 when there are none

    GraphTicks(double min, double max, double length, double spacing);

    /// Every how manyth major tick takes a label so that labels of this extent keep apart;
    /// \p pixels is the distance of two values that are one step apart.
    static int labelStride(double extent, double pixels);
};

/// "h:mm:ss" of a tick; between whole seconds with the decimals that \p step needs. Empty before
/// time 0.
QString timeLabel(double time, double step);

/// A value tick's label in the format of its step; in exponent notation where that is too long.
QString valueLabel(double value, double step);

} // namespace TARN
