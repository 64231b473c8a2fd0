#include "faults/EventWords.h"

#include "base/Numbers.h"
#include "profile/ProfileTypes.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

constexpr int Digits = 12;

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct EventTexts
{
    Q_DECLARE_TR_FUNCTIONS(EventWords)
};

} // namespace

QStringList severityWords(EventKind kind)
{
    switch (kind) {
    case EventKind::Lamps:
        return {QString(), EventTexts::tr("Caution"), EventTexts::tr("Warning")};
    case EventKind::Faults:
        return {EventTexts::tr("Information"), EventTexts::tr("Warning"), EventTexts::tr("Fault")};
    default:
        return {QString(), EventTexts::tr("Warning"), EventTexts::tr("Limit")};
    }
}

QString durationWords(double seconds)
{
    return EventTexts::tr("%1 s").arg(seconds, 0, 'f', 1);
}

QString valueWords(const ProfileParameter& parameter, double value)
{
    const bool isSingle =
        parameter.dataType == DataType::Float || parameter.dataType == DataType::Nmea;
    std::string text;
    if (isSingle) {
        appendShortest(static_cast<float>(value), text);
    } else {
        appendGeneral(value, Digits, text);
    }
    const QString number = QString::fromStdString(text);
    return parameter.unit.isEmpty() ? number : number + " " + parameter.unit;
}

QString thresholdWords(const Episode::Peak& peak)
{
    std::string text = peak.below ? "< " : "\xe2\x89\xa5 ";
    appendGeneral(peak.below.value_or(peak.threshold), Digits, text);
    return QString::fromStdString(text);
}

} // namespace TARN
