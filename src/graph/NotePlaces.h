#pragma once

#include "graph/GraphModel.h"
#include "graph/GraphStyle.h"

namespace TARN {

/// Something that went wrong, where the graph shows it.
struct GraphNote
{
    double time; ///< to go to, seconds
    double stop; ///< where it was over, the same for a moment
    QString text;
};

/// Where a graph shows what went wrong: ticks over the plot, bars at the upper edges of the
/// strips, lanes under them. Pixels from the lower left corner.
class NotePlaces
{
public:
    static constexpr double TickHeight = 9.0;
    static constexpr double BarHeight = 4.0;

    /// Of a graph that is laid out; all is referred to.
    NotePlaces(const GraphModel& model, const GraphStyle& style);

    /// Lower edge of the bars of a shown curve; in single mode each has a row of its own.
    double barBottom(const ParStruct& curve) const;
    /// Lower edge of a lane; the first one is the uppermost.
    double laneBottom(std::size_t lane) const;

    /// What is shown there, by time; empty where nothing is.
    std::vector<GraphNote> at(double x, double y) const;

    /// The events whose ticks stand at a time, or so near that they are taken for the same.
    std::vector<GraphNote> eventsAt(double moment) const;

private:
    std::vector<GraphNote> episodesAt(double x, double y) const;
    std::vector<GraphNote> faultsAt(double x, double y) const;
    bool covers(double start, double stop, double x) const;

    const GraphModel& mModel;
    const GraphStyle& mStyle;
    const GraphView& mView;
};

/// Lines that tell of notes, a few at most, the number of the others last.
QString textOf(const std::vector<GraphNote>& notes);

} // namespace TARN
