#pragma once

#include "graph/CompanionDrawing.h"

namespace TARN {

/// The legend of a graph that is laid out: name and value at the cursor of each curve, and the
/// names of those that are hidden.
class LegendDrawing
{
public:
    /// All is referred to.
    LegendDrawing(const GraphModel& model, const GraphStyle& style,
                  const CompanionDrawing& companions, TextLayout& texts);

    void draw();

private:
    QString legendOf(const ParStruct& curve, double room) const;
    void addLegend(unsigned k, QPointF place, const QRectF& plot);
    void drawHiddenLabels();
    QRectF plotBox() const;

    const GraphModel& mModel;
    const GraphStyle& mStyle;
    const CompanionDrawing& mCompanions;
    TextLayout& mTexts;
    double mHeight; ///< of the widget, pixels
};

} // namespace TARN
