#pragma once

#include "graph/NotePlaces.h"
#include "graph/TextLayout.h"

#include <QtCore/QPointF>

namespace TARN {

/// What stands where on a graph as it was painted last: legends, strips, what went wrong.
/// Positions are pixels from the upper left corner.
class GraphSpots
{
public:
    /// All live as long.
    GraphSpots(GraphModel& model, const GraphStyle& style, const TextLayout& texts)
        : mModel(model), mStyle(style), mTexts(texts)
    {}

    std::optional<unsigned> legendAt(QPointF position) const { return mTexts.legendAt(position); }
    /// The curve whose legend, in split mode whose strip, is there.
    std::optional<unsigned> curveAt(QPointF position) const;
    /// By time; empty where nothing is.
    std::vector<GraphNote> notesAt(QPointF position) const;
    QString toolTipAt(QPointF position) const;
    /// Whether a click there does something of its own.
    bool isForClicks(QPointF position) const;

private:
    double rowOf(QPointF position) const;

    GraphModel& mModel;
    const GraphStyle& mStyle;
    const TextLayout& mTexts;
};

} // namespace TARN
