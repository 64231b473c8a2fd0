#pragma once

#include <cmath>
#include <limits>
#include <string>

namespace TARN {

/// \p value truncated toward zero; what does not fit is clamped and NaN is 0, because the bare
/// conversion would be undefined for both.
template <typename Integer>
Integer truncatedTo(double value)
{
    // The largest Integer may round up as a double; ">=" keeps it out of the conversion.
    constexpr auto lowest = static_cast<double>(std::numeric_limits<Integer>::min());
    constexpr auto highest = static_cast<double>(std::numeric_limits<Integer>::max());
    if (std::isnan(value)) {
        return 0;
    }
    if (value <= lowest) {
        return std::numeric_limits<Integer>::min();
    }
    if (value >= highest) {
        return std::numeric_limits<Integer>::max();
    }
    return static_cast<Integer>(value);
}

/// Appends \p value in general notation with at most \p digits significant digits, as printf's
/// "%.<digits>g" does in the "C" locale, whatever the locale of the process.
void appendGeneral(double value, int digits, std::string& out);

/// Appends the shortest text that reads back as \p value, without an exponent for numbers from
/// 0.0001 to below 1e12.
void appendShortest(float value, std::string& out);

/// Appends \p value in tenths, rounded, as short as can be: "12", "-0.3".
void appendTenths(double value, std::string& out);

/// \p value in fixed notation with \p decimals decimals, as "%.<decimals>f" in the "C" locale.
std::string fixedText(double value, int decimals);

/// The number a text begins with, as atof reads it in the "C" locale; 0 when there is none.
double leadingDouble(const std::string& text);

/// The number a text begins with, as atoi reads it, clamped to int; 0 when there is none.
int leadingInt(const std::string& text);

} // namespace TARN
