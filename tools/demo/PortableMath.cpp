#include "PortableMath.h"

#include <cmath>

namespace TARN::Demo {

namespace {

constexpr double kLn2High = 0.693147180369123816490;
constexpr double kLn2Low = 1.90821492927058770002e-10;

double sineSeries(double r)
{
    double square = r * r;
    double term = r;
    double sum = r;
    for (int n = 2; n <= 14; n += 2) {
        term *= -square / (n * (n + 1));
        sum += term;
    }
    return sum;
}

double cosineSeries(double r)
{
    double square = r * r;
    double term = 1.0;
    double sum = 1.0;
    for (int n = 1; n <= 15; n += 2) {
        term *= -square / (n * (n + 1));
        sum += term;
    }
    return sum;
}

// Halving the angle twice brings the argument below 0.2, where the series is short.
double arcTangent(double x)
{
    x = x / (1.0 + std::sqrt(1.0 + x * x));
    x = x / (1.0 + std::sqrt(1.0 + x * x));
    double square = x * x;
    double term = x;
    double sum = 0.0;
    for (int n = 1; n <= 17; n += 2) {
        sum += term / n;
        term *= -square;
    }
    return 4.0 * sum;
}

} // namespace

double sine(double angle)
{
    double quarter = std::floor(angle / (kPi / 2.0) + 0.5);
    double rest = angle - quarter * (kPi / 2.0);
    int quadrant = static_cast<int>(quarter - 4.0 * std::floor(quarter / 4.0));
    double value = quadrant % 2 == 0 ? sineSeries(rest) : cosineSeries(rest);
    return quadrant < 2 ? value : -value;
}

double cosine(double angle)
{
    return sine(angle + kPi / 2.0);
}

double tangent(double angle)
{
    return sine(angle) / cosine(angle);
}

double arcTangent2(double y, double x)
{
    if (x == 0.0 && y == 0.0)
        return 0.0;
    if (std::fabs(y) > std::fabs(x)) {
        double rest = arcTangent(x / y);
        return (y > 0.0 ? kPi / 2.0 : -kPi / 2.0) - rest;
    }
    double angle = arcTangent(y / x);
    if (x > 0.0)
        return angle;
    return y >= 0.0 ? angle + kPi : angle - kPi;
}

double exponential(double x)
{
    double count = std::floor(x / (kLn2High + kLn2Low) + 0.5);
    double rest = x - count * kLn2High - count * kLn2Low;
    double term = 1.0;
    double sum = 1.0;
    for (int n = 1; n <= 14; ++n) {
        term *= rest / n;
        sum += term;
    }
    return std::ldexp(sum, static_cast<int>(count));
}

double logarithm(double x)
{
    int exponent = 0;
    double mantissa = std::frexp(x, &exponent);
    if (mantissa < 0.70710678118654752) {
        mantissa *= 2.0;
        --exponent;
    }
    double s = (mantissa - 1.0) / (mantissa + 1.0);
    double square = s * s;
    double term = s;
    double sum = 0.0;
    for (int n = 1; n <= 21; n += 2) {
        sum += term / n;
        term *= square;
    }
    return 2.0 * sum + exponent * kLn2High + exponent * kLn2Low;
}

double power(double base, double exponent)
{
    return exponential(exponent * logarithm(base));
}

double wrapAngle(double angle)
{
    return angle - 2.0 * kPi * std::floor(angle / (2.0 * kPi) + 0.5);
}

double clampTo(double value, double low, double high)
{
    return value < low ? low : (value > high ? high : value);
}

double approach(double value, double target, double step)
{
    return value + clampTo(target - value, -step, step);
}

} // namespace TARN::Demo
