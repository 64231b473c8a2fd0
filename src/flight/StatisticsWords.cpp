#include "flight/StatisticsWords.h"

#include "base/Numbers.h"

#include <algorithm>

namespace TARN {

QString numberWords(double number, int digits)
{
    std::string text;
    appendGeneral(number, digits, text);
    return QString::fromStdString(text);
}

int decimalsOf(const QString& number)
{
    const qsizetype point = number.indexOf('.');
    return point < 0 || number.contains('e') ? 0 : static_cast<int>(number.size() - point - 1);
}

QString aboveWords(const Statistics::Above& above)
{
    return QString("\u2265 %1: %2 s")
        .arg(numberWords(above.value), fixedText(above.seconds, 1).c_str());
}

namespace {

struct RateUnit
{
    const char* ending;
    double seconds;
};
constexpr RateUnit RateUnits[] = {{"/h", 3600.0}, {"/min", 60.0}, {"/s", 1.0}};

} // namespace

bool isRate(const QString& unit)
{
    return std::ranges::any_of(RateUnits,
                               [&](const RateUnit& rate) { return unit.endsWith(rate.ending); });
}

QString integralWords(double valueSeconds, const QString& unit)
{
    for (const auto& [ending, seconds] : RateUnits) {
        if (unit.endsWith(ending)) {
            const QString whole = unit.chopped(static_cast<qsizetype>(qstrlen(ending)));
            const QString text = numberWords(valueSeconds / seconds);
            return whole == "1" ? text : text + " " + whole; // what is counted has no unit
        }
    }
    return numberWords(valueSeconds) + (unit.isEmpty() ? " s" : " " + unit + "\u00B7s");
}

} // namespace TARN
