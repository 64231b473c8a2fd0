#include "cli/DecodeCommand.h"

#include "cli/SampleLines.h"

namespace TARN {

void runDecode(const DecodeArguments& arguments, std::ostream& out)
{
    const auto flight = loadFlight(arguments.profile, arguments.files);
    const Selection selection = selectionOf(arguments.selection, *flight->profile());
    SampleLines lines(arguments.format, out);
    for (const auto& [device, parameter] : flight->profile()->parameters()) {
        if (!selection.contains(*parameter)) {
            continue;
        }
        const Series series = flight->series(*parameter, 0.0);
        lines.begin(*device, *parameter);
        for (const RecordEntry& entry : series.entries()) {
            lines.add(entry, series.decoder());
        }
    }
    lines.flush();
}

} // namespace TARN
