#pragma once

#include "graph/GraphCanvas.h"
#include "graph/NotePlaces.h"
#include "graph/TextLayout.h"

namespace TARN {

/// Draws what a profile says of the curves and what went wrong: thresholds, episodes, events,
/// states in words, error matrices. What falls into one pixel column is drawn once.
class NoteDrawing
{
public:
    /// Everything is referred to.
    NoteDrawing(const GraphModel& model, const GraphStyle& style, GraphCanvas& canvas,
                TextLayout& texts);

    /// Behind a curve.
    void drawThresholds(const ParStruct& curve);
    // Over it.
    void drawEpisodes(const ParStruct& curve);
    void drawWords(const ParStruct& curve);
    void drawEvents();
    void drawLanes();

private:
    void drawLane(const FaultHistory& history, double bottom);
    void addLaneText(const FaultRun& run, const FaultHistory& history, double bottom);
    QString namesIn(const QString& list, double room) const;
    double column(double time) const;
    double topOf(double y) const { return mModel.layout().size().height() - y; }

    const GraphModel& mModel;
    const GraphStyle& mStyle;
    GraphCanvas& mCanvas;
    TextLayout& mTexts;
    const GraphView& mView;
    NotePlaces mPlaces;
};

} // namespace TARN
