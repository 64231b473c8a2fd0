#include "graph/GraphStyle.h"

#include "graph/GraphPalette.h"

namespace TARN {

GraphStyle themed(GraphStyle style, bool isLight)
{
    const GraphStyle dark;
    style.back = isLight ? GraphColor{1.0F, 1.0F, 1.0F} : dark.back;
    style.grid = isLight ? GraphColor{0.7F, 0.7F, 0.75F} : dark.grid;
    style.label = dark.label;
    style.labelBack = isLight ? GraphColor{0.97F, 0.97F, 0.97F} : dark.labelBack;
    style.fore = isLight ? GraphColor{0.15F, 0.15F, 0.15F} : dark.fore;
    style.marks = isLight ? GraphColor{0.85F, 0.6F, 0.0F} : dark.marks;
    return style;
}

GraphColor GraphStyle::inkOf(const GraphColor& color) const
{
    return isLight() ? legibleOn(back, color) : color;
}

} // namespace TARN
