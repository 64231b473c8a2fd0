#include "graph/ValueAxis.h"

namespace TARN {

namespace {

constexpr double Spacing = 25.0; ///< pixels between major ticks

/// Takes the zeros away that both fractions end in.
void shorten(QString& low, QString& high)
{
    const auto endsIn = [&](QChar c) { return low.endsWith(c) && high.endsWith(c); };
    while (low.contains('.') && high.contains('.') && (endsIn('0') || endsIn('.'))) {
        low.chop(1);
        high.chop(1);
    }
}

/// The ends of the range, one above the other or, where there is no room, in one line.
std::vector<ValueAxis::Label> endLabels(const GraphStrip& strip, double lineHeight)
{
    const double extent = strip.max - strip.min;
    const bool isTall = strip.height >= 2.0 * lineHeight;
    const int digits = isTall ? 3 : 2; // a line for both leaves less room
    QString low = rangeLabel(strip.min, extent, digits);
    QString high = rangeLabel(strip.max, extent, digits);
    shorten(low, high);
    if (isTall) {
        return {{strip.y0 + lineHeight / 2.0, low},
                {strip.y0 + strip.height - lineHeight / 2.0, high}};
    }
    return {{strip.y0 + strip.height / 2.0, low + " … " + high}};
}

ValueAxis axisOf(const GraphStrip& strip)
{
    ValueAxis axis;
    axis.ticks = GraphTicks::ofValues(strip.min, strip.max, strip.height, Spacing);
    for (const GraphTick& tick : axis.ticks.ticks) {
        if (tick.major) {
            axis.labels.push_back(
                {strip.toPixel(tick.value), valueLabel(tick.value, axis.ticks.step)});
        }
    }
    return axis;
}

} // namespace

ValueAxis ValueAxis::ofStrip(const GraphStrip& strip, double lineHeight)
{
    ValueAxis axis = axisOf(strip);
    std::erase_if(axis.labels, [&](const Label& label) {
        return label.y - lineHeight / 2.0 < strip.y0 ||
               label.y + lineHeight / 2.0 > strip.y0 + strip.height;
    });
    if (axis.labels.size() < 2) {
        axis.labels = endLabels(strip, lineHeight);
    }
    return axis;
}

ValueAxis ValueAxis::ofPlot(const GraphStrip& plot)
{
    return axisOf(plot);
}

} // namespace TARN
