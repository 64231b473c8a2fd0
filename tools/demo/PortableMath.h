#pragma once

// Elementary functions built from additions, multiplications and square roots only. Those are
// rounded alike on every machine, the ones of the C library are not, and a demo flight has to be
// the same bytes everywhere. Accurate to about 1e-12, far below the resolution of any sensor.

namespace TARN::Demo {

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegree = kPi / 180.0;

/// Angles in radians, magnitudes up to some thousand.
double sine(double angle);
double cosine(double angle);
double tangent(double angle);

/// Angle of the vector (x, y) in radians, -pi to pi; 0 for the null vector.
double arcTangent2(double y, double x);

/// e to the power x, for -700 < x < 700.
double exponential(double x);

/// Natural logarithm, x > 0.
double logarithm(double x);

/// base to the power exponent, base > 0.
double power(double base, double exponent);

/// Angle brought into -pi to pi.
double wrapAngle(double angle);

double clampTo(double value, double low, double high);

/// Value moved towards a target by at most step.
double approach(double value, double target, double step);

} // namespace TARN::Demo
