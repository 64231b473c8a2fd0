#include "cli/InfoCommand.h"

#include "cli/Inputs.h"
#include "cli/Json.h"
#include "flight/PositionTrack.h"
#include "record/CardInfo.h"
#include "record/RecordText.h"

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

Json integrityOf(const RecordInfo& info)
{
    return {{"missingHeaderBytes", info.missingHeaderBytes}, {"ignoredBytes", info.ignoredBytes}};
}

Json integrityOf(const FileIntegrity& file)
{
    const TimeFindings& found = file.found;
    Json object = integrityOf(file.info);
    object.update({{"samplesRead", file.samples},
                   {"samplesUnread", file.unread},
                   {"impossibleTimes", found.impossibleTimes},
                   {"firstImpossible", found.firstImpossible},
                   {"otherChannels", file.otherChannels},
                   {"gaps", found.gaps},
                   {"longestGap", found.longestGap},
                   {"longestGapStart", found.longestGapStart}});
    return object;
}

/// What is printed about one file.
struct FileReport
{
    Json fields;
    Json integrity;
    QStringList remarks;
};

FileReport headerReport(const QString& path)
{
    Record record;
    if (!record.readRecordInfo(path)) {
        throw CommandFailure("could not open the recording \"" + path.toStdString() + "\"");
    }
    const RecordInfo& info = record.recordInfo();
    return {fieldsOf(info), integrityOf(info), recordRemarks(info)};
}

/// What is wrong with the positions, where the profile names them.
void addPositions(const Record& record, const Profile& profile, FileReport& report)
{
    if (!namesPosition(profile)) {
        return;
    }
    Progress none;
    const RecordData& data = record.recordData();
    const PositionQuality found = positionQuality(
        data, profile, [&data] { return std::make_shared<Silences>(data, 0.0); }, none);
    report.integrity["positionsNowhere"] = found.nowhere;
    report.integrity["positionJumps"] = found.jumps;
    report.integrity["firstPositionJump"] = found.firstJump;
    report.remarks += found.remarks();
}

FileReport sampleReport(const QString& path, const std::string& profile, RecordIntegrity& checked)
{
    const std::shared_ptr<const Profile> known = profile.empty() ? nullptr : loadProfile(profile);
    const auto record = loadRecord({path.toStdString()});
    const FileIntegrity& file = record->integrity().files.front();
    checked.files.push_back(file);
    if (!record->integrity().damagedOffset.isEmpty()) {
        checked.damagedOffset = record->integrity().damagedOffset;
    }
    FileReport report{fieldsOf(file.info), integrityOf(file), recordRemarks(file)};
    if (known != nullptr) {
        const auto unknown = unknownIdentifiers(record->recordData(), *known);
        report.integrity["unknownIdentifiers"] = unknown.identifiers;
        report.integrity["unknownSamples"] = unknown.samples;
        report.remarks += unknown.remark();
        addPositions(*record, *known, report);
        report.remarks.removeAll(QString());
    }
    if (report.remarks.isEmpty()) {
        report.remarks += "none";
    }
    return report;
}

void print(const FileReport& report, bool json, std::ostream& out)
{
    if (json) {
        Json object = report.fields;
        object["integrity"] = report.integrity;
        out << object.dump() << '\n';
        return;
    }
    for (const auto& [name, value] : report.fields.items()) {
        out << name << ": " << (value.is_string() ? value.get<std::string>() : value.dump())
            << '\n';
    }
    for (const QString& remark : report.remarks) {
        out << "remark: " << remark.toStdString() << '\n';
    }
    out << '\n';
}

/// What speaks against reading the files as one recording; nothing where nothing does.
void printTogether(const RecordIntegrity& checked, bool json, std::ostream& out)
{
    Json lines = Json::array();
    for (const QString& remark : togetherRemarks(checked)) {
        lines.push_back(remark.toStdString());
        if (!json) {
            out << "remark: " << remark.toStdString() << '\n';
        }
    }
    if (json && !lines.empty()) {
        out << Json{{"remarks", lines}}.dump() << '\n';
    }
}

} // namespace

void runInfo(const InfoArguments& arguments, std::ostream& out)
{
    RecordIntegrity checked;
    for (const std::string& argument : arguments.paths) {
        const QString path = QString::fromStdString(argument);
        const auto files = QFileInfo(path).isDir() ? cardFiles(path) : std::vector<QString>{path};
        for (const QString& file : files) {
            print(arguments.check ? sampleReport(file, arguments.profile, checked)
                                  : headerReport(file),
                  arguments.json, out);
        }
    }
    printTogether(checked, arguments.json, out);
}

} // namespace TARN
