#pragma once

#include "flight/Statistics.h"

#include <QtCore/QString>

namespace TARN {

// How the panel and the report word numbers of statistics.

/// In general notation.
QString numberWords(double number, int digits = 6);

/// Decimals of a number as it is written; 0 with an exponent.
int decimalsOf(const QString& number);

/// How long values were not below a threshold: "\u2265 238: 61.5 s".
QString aboveWords(const Statistics::Above& above);

/// Whether values are rates, whose integral is what people ask for: "l/h", "m/min".
bool isRate(const QString& unit);

/// An integral in the unit that people ask for: of "l/h" in "l", of "m/min" in "m", of "1/min"
/// as a count; of others in the unit times seconds. \p valueSeconds as Statistics::integral.
QString integralWords(double valueSeconds, const QString& unit);

} // namespace TARN
