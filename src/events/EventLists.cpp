#include "events/EventLists.h"

#include "base/CountText.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct ListTexts
{
    Q_DECLARE_TR_FUNCTIONS(EventLists)
};

QString counted(const QString& text, const Watched& watched)
{
    return text.arg(countText(static_cast<qint64>(watched.samples)),
                    countText(static_cast<qint64>(watched.parameters)));
}

} // namespace

const std::vector<RecordEvent>* eventsOf(EventKind kind, const Events& events)
{
    return kind == EventKind::Limits  ? &events.limits
           : kind == EventKind::Lamps ? &events.warnings
                                      : nullptr;
}

const std::vector<Episode>& episodesOf(EventKind kind, const Troubles& troubles)
{
    return kind == EventKind::Limits  ? troubles.limits
           : kind == EventKind::Lamps ? troubles.lamps
                                      : troubles.faults;
}

QString allWell(EventKind kind, const Flight& flight)
{
    const Events& events = flight.events();
    Watched messages;
    for (const FaultHistory& history : flight.faults()) {
        messages.samples += history.messages();
        messages.parameters += history.isKnown() ? 1 : 0;
    }
    switch (kind) {
    case EventKind::Limits:
        return events.watchedLimits.parameters == 0
                   ? ListTexts::tr("The recording holds no FLOAT message of a parameter with a "
                                   "threshold, so nothing was watched for limits.")
                   : counted(ListTexts::tr("No limit event in %1 samples of %2 watched "
                                           "parameters."),
                             events.watchedLimits);
    case EventKind::Lamps:
        return events.watchedLamps.parameters == 0
                   ? ListTexts::tr("The recording holds no message of a warning lamp, so none was "
                                   "watched.")
                   : counted(ListTexts::tr("No warning lamp came on in %1 samples of %2 lamps."),
                             events.watchedLamps);
    default:
        return messages.samples > 0
                   ? counted(ListTexts::tr("No error was active in %1 messages of %2 matrices."),
                             messages)
                   : ListTexts::tr("The recording holds no message of an error matrix, so none was "
                                   "watched.");
    }
}

} // namespace TARN
