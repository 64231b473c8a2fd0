#pragma once

#include "Airframe.h"
#include "Controls.h"
#include "Engine.h"
#include "Random.h"
#include "Signals.h"

#include <array>

namespace TARN::Demo {

/// Temperatures and oil of the engine: cylinder heads, exhaust gas, oil temperature and pressure.
/// Degrees Celsius and bar.
class Thermal
{
public:
    /// Wear in weeks that the injector of cylinder 6 has been clogging.
    Thermal(Random& random, double wear) : mRandom(random), mWear(wear)
    {
        mHead.fill(13.5);
        mExhaust.fill(13.5);
    }

    /// Advances by dt seconds. oilFactor below 1 starves the oil pump.
    void step(const Controls& controls, const Airframe& airframe, const Engine& engine,
              double oilFactor, double dt);
    void report(Signals& signals) const;

    double head(std::size_t cylinder) const { return mHead[cylinder]; }
    double oilTemperature() const { return mOilTemperature; }
    double oilPressure() const { return mOilPressure; }

private:
    void liftSeal(const Airframe& airframe, const Engine& engine, double dt);
    void heatHeads(const Controls& controls, const Airframe& airframe, const Engine& engine,
                   double dt);
    void heatExhaust(const Engine& engine, double dt);
    double leaning(const Engine& engine, std::size_t cylinder) const;
    void pumpOil(const Airframe& airframe, const Engine& engine, double oilFactor, double dt);

    Random& mRandom;
    double mWear;
    std::array<double, 6> mHead{};
    std::array<double, 6> mExhaust{};
    std::array<double, 6> mFlicker{};
    double mSealLoss = 0.0; // share of cylinder 3's cooling air that goes past it
    Wander mOilRipple{0.6};
    double mOilTemperature = 14.0;
    double mOilPressure = 0.0;
};

} // namespace TARN::Demo
