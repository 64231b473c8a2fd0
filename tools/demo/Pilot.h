#pragma once

#include "Airframe.h"
#include "Controls.h"
#include "Engine.h"
#include "Thermal.h"

#include <cstddef>
#include <vector>

namespace TARN::Demo {

enum class Phase
{
    PreStart,
    WarmUp,
    TaxiOut,
    RunUp,
    LineUp,
    TakeOff,
    Climb,
    Cruise,
    Descent,
    Approach,
    Landing,
    RollOut,
    TaxiIn,
    Parked
};

/// Flies the aircraft from one apron to the other. The way out over the plain is made as long as
/// the wanted duration allows; the pilot turns back in time to be parked, engine idling, when the
/// recording ends.
class Pilot
{
public:
    /// Duration of the recording and how much longer the engine warms up than usual, in seconds.
    Pilot(double duration, double delay);

    /// Looks at the aircraft and sets the controls; time in seconds since power-up.
    void step(double time, const Airframe& airframe, const Engine& engine, const Thermal& thermal,
              double dt);

    const Controls& controls() const { return mControls; }
    Phase phase() const { return mPhase; }

private:
    enum class Leg
    {
        Straight,
        ToLake,
        Outbound,
        Back,
        Final
    };

    struct View; // what one step looks at

    void enter(Phase phase);

    void preStart(const View& view);
    void warmUp(const View& view);
    void taxiOut(const View& view);
    void runUp(const View& view);
    void lineUp(const View& view);
    void rollOut(const View& view);
    void taxiIn(const View& view);
    void parked(const View& view);
    void testMagnetos(const View& view);

    void takeOff(const View& view);
    void climb(const View& view);
    void coolCylinders(const View& view);
    void cruise(const View& view);
    void descend(const View& view);
    void approachField(const View& view);
    void configureForLanding(const View& view, double toGo);
    void land(const View& view);
    void navigate(const View& view);
    bool timeToTurnBack(const View& view) const;

    void holdRpm(const View& view, double rpm);
    void holdManifold(const View& view, double inches);
    void holdSpeed(const View& view, double speed);
    void holdAltitude(const View& view, double altitude, double rate);
    void steerTrack(const View& view, double track);
    void steerCentreline(const View& view, const Runway& runway);
    bool followRoute(const View& view, double speed);

    double mDuration;
    double mWarmUp; // s
    Controls mControls;
    Phase mPhase = Phase::PreStart;
    double mPhaseTime = 0.0; // s since the phase began
    Leg mLeg = Leg::Straight;
    std::vector<Position> mRoute;
    std::size_t mRoutePoint = 0;
    double mSpeedTrim = 0.0; // manifold pressure found to hold the speed, inHg
    double mHotTime = 0.0;   // s since cylinder 3 reached its limit
    bool mCooling = false;
};

/// One step as the pilot sees it.
struct Pilot::View
{
    double time;
    double dt;
    const Airframe& airframe;
    const Engine& engine;
    const Thermal& thermal;
};

} // namespace TARN::Demo
