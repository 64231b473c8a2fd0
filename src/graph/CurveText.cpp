#include "graph/CurveText.h"

#include "base/ClockTime.h"
#include "base/Numbers.h"
#include "flight/StatisticsWords.h"
#include "graph/NotePlaces.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

QString recorded(const ParStruct& curve, double value)
{
    constexpr int Digits = 12;
    std::string text;
    if (curve.isSingle) {
        appendShortest(static_cast<float>(value), text);
    } else {
        appendGeneral(value, Digits, text);
    }
    return QString::fromStdString(text);
}

} // namespace

QString curveText(const ParStruct& curve, double time, const char* format)
{
    double value = 0.0;
    const CurveSamples& samples = curve.samples();
    if (!samples.valueAt(time, value)) {
        return {};
    }
    if (format != nullptr) {
        return QString::asprintf(format, value);
    }
    const std::size_t k = samples.firstNotBefore(time, 0);
    if (samples.time(k) == time || k == 0 || !std::isfinite(value)) {
        return recorded(curve, value);
    }
    const int decimals = std::max(decimalsOf(recorded(curve, samples.value(k - 1))),
                                  decimalsOf(recorded(curve, samples.value(k))));
    return std::fabs(value) < 1e12 ? QString::number(value, 'f', decimals) : recorded(curve, value);
}

QString shownText(const ParStruct& curve, double time, const GraphStyle& style, const char* digits)
{
    if (style.wordsOn && curve.facts != nullptr && curve.facts->hasWords()) {
        return curve.facts->wordsAt(time);
    }
    return curveText(curve, time, style.allDigits ? digits : nullptr);
}

QString referenceTextOf(const ParStruct& curve, double time, const GraphStyle& style)
{
    if (curve.reference.samples == nullptr) {
        return {};
    }
    ParStruct other;
    other.series = curve.reference.samples;
    other.facts = curve.reference.facts;
    other.isSingle = curve.isSingle;
    return shownText(other, time, style, "%f");
}

QString differenceTextOf(const ParStruct& curve, double time)
{
    double value = 0.0;
    const auto& samples = curve.difference.samples;
    if (samples == nullptr || samples->empty() || !samples->valueAt(time, value) ||
        std::isnan(value)) {
        return {};
    }
    const int decimals = decimalsOf(curveText(curve, time));
    return (value > 0.0 ? "+" : "") + QString::number(value, 'f', decimals);
}

namespace {

/// Of a curve, of its reference and of the difference of both, as far as they are seen.
QString spokenValues(const ParStruct& curve, const GraphModel& model, const GraphStyle& style)
{
    const auto withUnit = [&](const QString& value) {
        return (value.isEmpty() ? "---" : value + " " + curve.unit).trimmed();
    };
    QString words = curve.name + " " + withUnit(shownText(curve, model.cursor(), style, "%f"));
    if (curve.reference.samples != nullptr && model.layout().isReferenceShown()) {
        const double time = model.cursor() - model.layout().referenceShift();
        words += ", ref. " + withUnit(referenceTextOf(curve, time, style));
    }
    if (curve.difference.samples != nullptr) {
        words += ", \u0394 " + withUnit(differenceTextOf(curve, model.cursor()));
    }
    return words;
}

} // namespace

QString spokenText(const GraphModel& model, const GraphStyle& style)
{
    QStringList words = {clockTextWithMilliseconds(model.cursor())};
    std::vector<unsigned> places = model.curves().shown();
    std::ranges::stable_partition(places, [&](unsigned k) { return k == model.hints().pointed; });
    for (const unsigned k : places) {
        words += spokenValues(*model.curves().curve(k), model, style);
    }
    const auto notes = NotePlaces(model, style).eventsAt(model.cursor());
    return (words.join(", ") + "\n" + textOf(notes)).trimmed();
}

} // namespace TARN
