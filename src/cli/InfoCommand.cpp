#include "cli/Commands.h"
#include "cli/Json.h"
#include "record/CardInfo.h"
#include "record/Record.h"

#include <QtCore/QFileInfo>

#include <nlohmann/json.hpp>
#include <ostream>

namespace TARN {

namespace {

Json fieldsOf(const RecordInfo& info)
{
    return {{"file", info.fileName.toStdString()},
            {"dateTime", info.dateTimeText().toStdString()},
            {"startTime", info.startTime},
            {"stopTime", info.stopTime},
            {"samples", info.samples},
            {"busType", info.busType},
            {"ecuSerialNumber", info.ecuSerialNumber},
            {"softwarePartA", info.softwarePartA.toStdString()},
            {"softwarePartB", info.softwarePartB.toStdString()},
            {"ecuType", info.ecuType.toStdString()},
            {"emuSwVersion", info.emuSwVersion.toStdString()},
            {"engineSerialNr", info.engineSerialNr.toStdString()},
            {"engineType", info.engineType.toStdString()}};
}

void printInfo(const RecordInfo& info, bool json, std::ostream& out)
{
    const Json object = fieldsOf(info);
    if (json) {
        out << object.dump() << '\n';
        return;
    }
    for (const auto& [name, value] : object.items()) {
        out << name << ": " << (value.is_string() ? value.get<std::string>() : value.dump())
            << '\n';
    }
    out << '\n';
}

} // namespace

void runInfo(const InfoArguments& arguments, std::ostream& out)
{
    for (const std::string& argument : arguments.paths) {
        const QString path = QString::fromStdString(argument);
        const auto files = QFileInfo(path).isDir() ? cardFiles(path) : std::vector<QString>{path};
        for (const QString& file : files) {
            Record record;
            if (!record.readRecordInfo(file)) {
                throw CommandFailure("could not open the recording \"" + file.toStdString() + "\"");
            }
            printInfo(record.recordInfo(), arguments.json, out);
        }
    }
}

} // namespace TARN
