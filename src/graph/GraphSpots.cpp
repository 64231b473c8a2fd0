#include "graph/GraphSpots.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

struct SpotText
{
    Q_DECLARE_TR_FUNCTIONS(WidgetGraph)
};

} // namespace

/// From the lower edge, as the model counts.
double GraphSpots::rowOf(QPointF position) const
{
    return mModel.layout().size().height() - position.y();
}

std::optional<unsigned> GraphSpots::curveAt(QPointF position) const
{
    if (const auto legend = legendAt(position)) {
        return legend;
    }
    const ParStruct* curve = mModel.layout().displayMode() == DisplaySplit
                                 ? mModel.curves().at(rowOf(position))
                                 : nullptr;
    return curve != nullptr ? std::optional(mModel.curves().indexOf(*curve)) : std::nullopt;
}

std::vector<GraphNote> GraphSpots::notesAt(QPointF position) const
{
    return NotePlaces(mModel, mStyle).at(position.x(), rowOf(position));
}

QString GraphSpots::toolTipAt(QPointF position) const
{
    if (const auto legend = legendAt(position)) {
        const ParStruct& curve = *mModel.curves().curve(*legend);
        return curve.name + "\n" +
               (curve.hidden
                    ? SpotText::tr("Click to show the curve")
                    : SpotText::tr(
                          "Click to hide the curve, drag to move it, right click for more"));
    }
    return textOf(notesAt(position));
}

bool GraphSpots::isForClicks(QPointF position) const
{
    return legendAt(position).has_value() || !notesAt(position).empty();
}

} // namespace TARN
