#include "cli/Commands.h"
#include "cli/Json.h"
#include "faults/EventDetector.h"
#include "profile/Profile.h"
#include "record/Record.h"

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

} // namespace

void runEvents(const EventsArguments& arguments, std::ostream& out)
{
    Record record;
    loadInputs(arguments.profile, arguments.files, record);
    detectEvents(record, *Profile::instance());
    for (const RecordLimit& event : record.recordData().limits) {
        printEvent("limit", event, out);
    }
    for (const RecordWarning& event : record.recordData().warnings) {
        printEvent("warning", event, out);
    }
}

} // namespace TARN
