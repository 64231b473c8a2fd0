#include "graph/CurveText.h"

#include "base/ClockTime.h"
#include "base/Numbers.h"
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

int decimalsOf(const QString& text)
{
    const qsizetype point = text.indexOf('.');
    return point < 0 || text.contains('e') ? 0 : static_cast<int>(text.size() - point - 1);
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

QString spokenText(const GraphModel& model, const GraphStyle& style)
{
    QStringList words = {clockTextWithMilliseconds(model.cursor())};
    std::vector<unsigned> places = model.curves().shown();
    std::ranges::stable_partition(places, [&](unsigned k) { return k == model.hints().pointed; });
    for (const unsigned k : places) {
        const ParStruct& curve = *model.curves().curve(k);
        const QString value = shownText(curve, model.cursor(), style, "%f");
        words += curve.name + " " + (value.isEmpty() ? "---" : value + " " + curve.unit).trimmed();
    }
    const auto notes = NotePlaces(model, style).eventsAt(model.cursor());
    return (words.join(", ") + "\n" + textOf(notes)).trimmed();
}

} // namespace TARN
