#pragma once

#include "graph/GraphCanvas.h"
#include "graph/GraphLine.h"
#include "graph/GraphModel.h"
#include "graph/GraphStyle.h"
#include "graph/TextLayout.h"

namespace TARN {

/// Draws what lies beside the curves of a graph that is laid out: those of the reference flight
/// behind them, thin and dashed, and the differences in strips of their own.
class CompanionDrawing
{
public:
    /// All is referred to.
    CompanionDrawing(const GraphModel& model, const GraphStyle& style, GraphCanvas& canvas,
                     TextLayout& texts);

    void drawReference(const ParStruct& curve, const GraphColor& color);
    void drawDifference(const ParStruct& curve, const GraphColor& color);
    /// Of the strip that all differences share in single mode.
    void drawTitle(const GraphStrip& place);

    /// What the legend says of the reference at the cursor; empty where the curve has none.
    QString referenceText(const ParStruct& curve) const;

private:
    void drawLine(std::span<const FrameType> frames, const GraphStrip& place,
                  const GraphColor& color);
    QString differenceText(const ParStruct& curve) const;
    void addLegend(const QString& text, const GraphStrip& place, const GraphColor& color);

    const GraphModel& mModel;
    const GraphStyle& mStyle;
    GraphCanvas& mCanvas;
    TextLayout& mTexts;
    const GraphView& mView;
    GraphLine mLine;
};

} // namespace TARN
