#pragma once

#include "graph/CurveFacts.h"
#include "graph/CurveFrames.h"
#include "graph/GraphTypes.h"
#include "graph/GraphView.h"

#include <QtCore/QString>

#include <memory>
#include <span>
#include <vector>

namespace TARN {

/// Samples that are drawn with a curve.
struct Companion
{
    std::shared_ptr<const CurveSamples> samples; ///< null: it has none
    std::shared_ptr<const CurveFacts> facts;     ///< may be null
    CurveFrames frames;                          ///< of the visible time

    void clear() { *this = {}; }
};

/// One plotted curve: its samples, and how and where it is drawn.
struct ParStruct
{
    CurveSamples live;                          ///< put one by one; the last one holds until now
    std::shared_ptr<const CurveSamples> series; ///< of a recording, instead; may be null
    CurveFrames frames;                         ///< of the visible time
    bool active = false;
    bool valueSet = false; ///< a value was put since the time was last set
    double lastValue = 0.0;
    ValueRange visible{0.0, 0.0}; ///< of the frames
    GraphStrip strip;             ///< where it is drawn, and its Y range
    GraphColor color;
    QString name = "NoName";
    QString unit;
    bool isSingle = false; ///< its numbers are of single precision
    bool showSamples = false;
    std::shared_ptr<const CurveFacts> facts; ///< of a recording's; may be null
    bool hidden = false;                     ///< active, but not drawn
    std::optional<ValueRange> ownRange;      ///< Y range of its strip, instead of what is in sight
    std::optional<ValueRange> zoomed;        ///< for as long as the user looks at it so
    Companion reference;                     ///< of the other flight, on its own clock
    Companion difference;                    ///< flight minus reference
    GraphStrip differenceStrip; ///< where that is drawn, without height where it is not

    bool isShown() const { return active && !hidden; }
    /// Whether a pixel row lies in the strip of its difference.
    bool isDifferenceAt(double y) const { return differenceStrip.height > 0.0 && y < strip.y0; }
    const GraphStrip& stripOf(bool isDifference) const
    {
        return isDifference && differenceStrip.height > 0.0 ? differenceStrip : strip;
    }
    const CurveSamples& samples() const { return series != nullptr ? *series : live; }
};

/// The curves of a graph. They are known by index; an index that is not below count() is ignored.
class CurveSet
{
public:
    static constexpr unsigned MaxCurves = 30;

    /// Starts afresh with \p n curves, at least 1 and at most 30, in their own colours.
    explicit CurveSet(unsigned n = 6);

    unsigned count() const { return static_cast<unsigned>(mCurves.size()); }
    std::span<ParStruct> all() { return mCurves; }
    std::span<const ParStruct> all() const { return mCurves; }

    /// Curve \p i, or null when there is none.
    ParStruct* curve(unsigned i) { return i < count() ? &mCurves[i] : nullptr; }
    const ParStruct* curve(unsigned i) const { return i < count() ? &mCurves[i] : nullptr; }
    unsigned indexOf(const ParStruct& curve) const
    {
        return static_cast<unsigned>(&curve - mCurves.data());
    }

    /// The active curves that are not hidden, in the order of their strips, by index.
    std::vector<unsigned> shown() const;
    bool hasSamples() const; ///< of an active curve

    /// Indexes in the order of the strips; those that are not named follow. None is named twice.
    void setOrder(std::vector<unsigned> order);
    const std::vector<unsigned>& order() const { return mOrder; }
    /// Puts a curve where another one stands in the order.
    void moveTo(unsigned curve, unsigned place);

    /// Adds a sample. False when its time falls; it and the one before it are not there then.
    bool put(unsigned i, double time, double value);

    /// Shows other samples, of a whole recording.
    void setSeries(unsigned i, std::shared_ptr<const CurveSamples> samples);

    /// Whether a curve that is shown has a difference.
    bool hasDifferences() const;

    /// Takes the samples away; the ranges of all values ever put stay.
    void clear();

    /// Earliest and latest time of any sample; empty when there is none.
    ValueRange timeRange() const;

    /// The shown curve whose strip holds a pixel row; the first one when none does. Null when none
    /// is shown.
    ParStruct* at(double y);

private:
    std::vector<ParStruct> mCurves;
    std::vector<unsigned> mOrder;
};

} // namespace TARN
