#include "cli/EventsCommand.h"

#include "cli/Inputs.h"
#include "cli/Json.h"

#include <ostream>

namespace TARN {

namespace {

void printEvent(const char* kind, const RecordEvent& event, std::ostream& out)
{
    const Json line = {{"kind", kind},
                       {"time", event.time},
                       {"name", event.name},
                       {"value", event.value},
                       {"text", event.text.toStdString()},
                       {"color", jsonOf(event.color)},
                       {"tenths", event.tenths}};
    out << line.dump() << '\n';
}

void printEpisode(const Episode& episode, std::ostream& out)
{
    Json line = {{"kind", "episode"},
                 {"device", episode.device->name.toStdString()},
                 {"parameter", episode.parameter->name.toStdString()},
                 {"state", episode.state},
                 {"start", episode.start},
                 {"end", episode.end},
                 {"duration", episode.duration()},
                 {"samples", episode.samples},
                 {"peak", nullptr},
                 {"peakTime", nullptr},
                 {"threshold", nullptr},
                 {"color", nullptr},
                 {"announced", episode.isAnnounced()}};
    if (episode.peak) {
        line["peak"] = episode.peak->value;
        line["peakTime"] = episode.peak->time;
        line["threshold"] = episode.peak->threshold;
        line["color"] = jsonOf(episode.peak->color);
    }
    out << line.dump() << '\n';
}

} // namespace

void runEvents(const EventsArguments& arguments, std::ostream& out)
{
    const auto flight = loadFlight(arguments.profile, arguments.files);
    for (const RecordLimit& event : flight->events().limits) {
        printEvent("limit", event, out);
    }
    for (const RecordWarning& event : flight->events().warnings) {
        printEvent("warning", event, out);
    }
    if (arguments.episodes) {
        Progress none;
        for (const Episode& episode : flight->episodes(flight->record()->offset(), none)) {
            printEpisode(episode, out);
        }
    }
}

} // namespace TARN
