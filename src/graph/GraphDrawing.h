#pragma once

#include "graph/GraphCanvas.h"
#include "graph/GraphLine.h"
#include "graph/GraphModel.h"
#include "graph/GraphStyle.h"
#include "graph/LegendDrawing.h"
#include "graph/NoteDrawing.h"
#include "graph/TextLayout.h"

#include <QtCore/QSizeF>

namespace TARN {

/// One paint of a graph that is prepared: shapes go to the canvas at once, texts are placed and
/// painted on top of them afterwards.
class GraphDrawing
{
public:
    /// Everything is referred to. The model is laid out.
    GraphDrawing(const GraphModel& model, const GraphStyle& style, const KeyCursor& keyCursor,
                 GraphCanvas& canvas, TextLayout& texts);

    void draw();

private:
    void drawBackground();
    void drawTicksX();
    void drawCurves();
    void drawDifferences();
    void drawAxis(const ParStruct* curve);
    void drawTicksY(const ValueAxis& axis, const GraphStrip& strip, const GraphColor& color);
    void drawParameter(const ParStruct& curve);
    void drawSamples(const ParStruct& curve);
    void drawMarker();
    void drawMarkerEnds();
    void drawCursor();
    void drawCursorValues(double x, double y);
    void drawOutline();
    QRectF plotBox() const;
    double keyCursorY() const;

    const GraphModel& mModel;
    const GraphStyle& mStyle;
    const KeyCursor& mKeyCursor;
    const QSizeF mSize;
    GraphCanvas& mCanvas;
    TextLayout& mTexts;
    const GraphView& mView;
    NoteDrawing mNotes;
    CompanionDrawing mCompanions;
    LegendDrawing mLegend;
    GraphLine mLine;
};

} // namespace TARN
