#include "Flights.h"

#include "Harness.h"
#include "profile/Profile.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <unistd.h>

namespace TARN::Bench {

void writeProfile(const std::string& path, const std::vector<Message>& messages)
{
    const Profile types;
    std::map<int, std::string> typeNames;
    for (const auto& [name, code] : types.typeCodes()) {
        typeNames[code] = name.toStdString();
    }
    std::ofstream file(path);
    file << "<CanAerospaceProfile name='Bench'>"
            "<EnumList><Enum name='WarningLamp'><Value val='1' label='on'/></Enum></EnumList>"
            // The numbers wander up to 121: events are as rare as in a flight, some hundreds.
            "<ThresholdList><Threshold name='T'><Value val='-1e9' state='OK'/>"
            "<Value val='120.9' state='WARNING'/><Value val='120.97' state='LIMIT'/>"
            "</Threshold></ThresholdList><Device name='Bus'>";
    for (const Message& message : messages) {
        // Its bits are random, so only a message that is seldom sent can stand for a lamp.
        const bool isLamp = message.typeCode == DataType::BLong && message.period >= 100;
        file << "<Parameter name='P" << message.channel << '.' << message.id << "' channel='"
             << message.channel << "' id='" << message.id << "' dataType='"
             << typeNames.at(message.typeCode) << "' startByte='4' endBit='1' thresholdId='T'"
             << (isLamp ? " enumId='WarningLamp'/>" : "/>");
    }
    file << "</Device></CanAerospaceProfile>";
}

std::shared_ptr<const Profile> profileOf(const std::vector<Message>& messages)
{
    std::string path = (std::filesystem::temp_directory_path() / "profile-XXXXXX").string();
    const int made = mkstemp(path.data());
    require(made >= 0, "no file for a profile");
    close(made);
    writeProfile(path, messages);
    auto profile = Profile::load(QString::fromStdString(path));
    std::filesystem::remove(path);
    require(profile->isLoaded() && profile->parameters().size() == messages.size(),
            "the profile was not read");
    return profile;
}

std::shared_ptr<const Record> loadRecord(const std::string& path)
{
    auto record = std::make_shared<Record>();
    require(record->readRecordData({QString::fromStdString(path)}), "can't load " + path);
    return record;
}

std::shared_ptr<const Flight> flightOf(const std::string& path,
                                       const std::vector<Message>& messages)
{
    return Flight::make(loadRecord(path), profileOf(messages));
}

} // namespace TARN::Bench
