#pragma once

#include "Controls.h"
#include "Random.h"
#include "Signals.h"

#include <cstddef>
#include <vector>

namespace TARN::Demo {

/// What goes wrong on the way and what the monitoring unit says about it: the oil pressure dip, the
/// loose wire of the exhaust probe of cylinder 5, the warning lamps and the status words.
class Story
{
public:
    explicit Story(Random& random);

    /// Share of the oil that the pump gets, 0 to 1, at a time in seconds since power-up.
    double oilFactor(double time) const;

    /// Sets the lamps and the status words from the other signals of the same moment.
    void judge(double time, const Controls& controls, bool running, Signals& signals);

    /// Replaces the exhaust temperature of cylinder 5 where the loose wire falsifies it. Each spike
    /// hits the first reading at or after its moment and no other, however often the unit reads.
    double exhaustReading(double time, double temperature);

private:
    struct Burst
    {
        double start;
        double stop;
    };
    struct Spike
    {
        double time;
        double reading;
    };

    bool wireLoose(double time) const;
    void judgeLamps(const Controls& controls, bool running, Signals& signals);
    void judgeEngine(double time, const Controls& controls, bool running, Signals& signals) const;
    void judgeSystem(double time, const Controls& controls, Signals& signals) const;

    double mOilDip;
    std::vector<Burst> mBursts;
    std::vector<Spike> mSpikes;
    std::size_t mNextSpike = 0;
    unsigned mHeadLamp = 0;
    bool mOilSeen = false;
    double mHottestHead = 0.0;
};

} // namespace TARN::Demo
