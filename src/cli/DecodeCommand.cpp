#include "cli/Commands.h"
#include "cli/Json.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace TARN {

namespace {

void decodeParameter(const ProfileDevice& device, const ProfileParameter& parameter,
                     const Record& record, std::ostream& out)
{
    const RecordIdList* list = record.recordData().find(static_cast<unsigned>(parameter.channel),
                                                        static_cast<unsigned>(parameter.id));
    if (list == nullptr) {
        return;
    }
    const Decoder decoder(Profile::instance()->data(), parameter);
    Json line = {{"device", device.name.toStdString()},
                 {"parameter", parameter.name.toStdString()},
                 {"channel", list->channel},
                 {"id", list->id},
                 {"time", 0.0},
                 {"int", 0},
                 {"double", 0.0},
                 {"raw", 0.0},
                 {"state", 0},
                 {"text", ""},
                 {"color", nullptr}};
    std::string text;
    for (const RecordEntry& entry : list->entries) {
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
    Record record;
    loadInputs(arguments.profile, arguments.files, record);
    applySelection(arguments.selection);
    Profile::instance()->forEachParameter(
        [&](const ProfileDevice& device, const ProfileParameter& parameter) {
            if (parameter.selected) {
                decodeParameter(device, parameter, record, out);
            }
        });
}

} // namespace TARN
