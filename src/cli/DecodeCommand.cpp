#include "cli/DecodeCommand.h"

#include "cli/Json.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace TARN {

namespace {

void decodeParameter(const ProfileDevice& device, const Series& series, std::ostream& out)
{
    const ProfileParameter& parameter = series.parameter();
    const Decoder& decoder = series.decoder();
    Json line = {{"device", device.name.toStdString()},
                 {"parameter", parameter.name.toStdString()},
                 {"channel", static_cast<unsigned>(parameter.channel)},
                 {"id", static_cast<unsigned>(parameter.id)},
                 {"time", 0.0},
                 {"int", 0},
                 {"double", 0.0},
                 {"raw", 0.0},
                 {"state", 0},
                 {"text", ""},
                 {"color", nullptr}};
    std::string text;
    for (const RecordEntry& entry : series.entries()) {
        text.clear();
        const QColor color = decoder.appendDisplay(entry, text);
        line["time"] = entry.time();
        line["int"] = decoder.toInt(entry);
        line["double"] = decoder.toDouble(entry, true);
        line["raw"] = decoder.toDouble(entry, false);
        line["state"] = decoder.state(entry);
        line["text"] = text;
        line["color"] = jsonOf(color);
        out << line.dump() << '\n';
    }
}

} // namespace

void runDecode(const DecodeArguments& arguments, std::ostream& out)
{
    const auto flight = loadFlight(arguments.profile, arguments.files);
    const Selection selection = selectionOf(arguments.selection, *flight->profile());
    for (const auto& [device, parameter] : flight->profile()->parameters()) {
        if (selection.contains(*parameter)) {
            decodeParameter(*device, flight->series(*parameter, 0.0), out);
        }
    }
}

} // namespace TARN
