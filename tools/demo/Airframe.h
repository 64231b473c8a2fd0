#pragma once

#include "Airfield.h"
#include "Atmosphere.h"
#include "Controls.h"
#include "Random.h"
#include "Signals.h"

namespace TARN::Demo {

/// Motion of the aircraft: a point mass with thrust, drag and lift in moving air, whose attitude
/// follows from its path. Vertical and forward motion exchange energy, so climb rates and cruise
/// speeds are results of the engine's power.
class Airframe
{
public:
    explicit Airframe(Random& random);

    /// Advances by dt seconds. Thrust in N, mass in kg.
    void step(const Controls& controls, double thrust, double mass, double dt);
    void report(Signals& signals) const;

    const Air& air() const { return mAir; }
    const Position& position() const { return mPosition; }
    bool onGround() const { return mOnGround; }
    double altitude() const { return mAltitude; } ///< m above mean sea level
    double trueAirspeed() const { return mAirspeed; }
    double indicatedAirspeed() const { return indicatedSpeed(mAirspeed, mAir); }
    double groundSpeed() const { return mGroundSpeed; }
    double heading() const { return mHeading; } ///< rad, not wrapped
    double track() const { return mTrack; }     ///< rad, wrapped to the heading's turn
    double gear() const { return mGear; }       ///< 0 up to 1 down and locked
    double flaps() const { return mFlaps; }     ///< degrees

private:
    void moveSurfaces(const Controls& controls, double dt);
    void roll(const Controls& controls, double thrust, double mass, double dt);
    void fly(const Controls& controls, double thrust, double mass, double dt);
    double climbCommand(const Controls& controls, double excess) const;
    double drag(const Controls& controls, double mass) const;
    void blow(double dt);
    void drift(double dt);
    void settleAttitude(double mass, double dt);

    Random& mRandom;
    Wander mGust{2.5};  // vertical air motion
    Wander mSurge{4.0}; // along the flight path
    Wander mRock{1.2};  // in roll
    Wander mSway{0.6};  // sideways
    Air mAir;
    Position mPosition;
    bool mOnGround = true;
    double mAltitude;
    double mAirspeed = 0.0;
    double mGroundSpeed = 0.0;
    double mHeading;
    double mTrack;
    double mBank = 0.0;
    double mClimbAngle = 0.0;
    double mClimbRate = 0.0;
    double mTurbulence = 0.0; // 0 calm to 1 bumpy
    double mGear = 1.0;
    double mFlaps = 0.0;
    double mLoad = 1.0;    // g
    double mForward = 0.0; // acceleration along the path, m/s^2
    double mBump = 0.0;    // vertical shock of the wheels, g
    double mYawRate = 0.0;
    double mPitch = 0.0;
    double mPitchRate = 0.0;
    double mRoll = 0.0; // bank with the rocking of the air, rad
    double mRollRate = 0.0;
};

} // namespace TARN::Demo
