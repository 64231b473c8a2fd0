#include "profile/Profile.h"

#include "base/Diagnostics.h"
#include "base/XmlHandler.h"
#include "profile/Decoder.h"
#include "profile/ProfileReader.h"

namespace TARN {

void ProfileInfo::clear()
{
    devices.clear();
    enums.clear();
    units.clear();
    thresholds.clear();
    faultMatrices.clear();
}

Profile::Profile()
{
    constexpr struct
    {
        const char* name;
        int code;
    } Types[] = {
        {"NODATA", 0},    {"ERROR", 1},    {"FLOAT", 2},    {"NMEA", 70},    {"LONG", 3},
        {"ULONG", 4},     {"BLONG", 5},    {"SHORT", 6},    {"USHORT", 7},   {"BSHORT", 8},
        {"CHAR", 9},      {"UCHAR", 10},   {"BCHAR", 11},   {"SHORT_2", 12}, {"USHORT_2", 13},
        {"BSHORT_2", 14}, {"CHAR_4", 15},  {"UCHAR_4", 16}, {"BCHAR_4", 17}, {"CHAR_2", 18},
        {"UCHAR_2", 19},  {"BCHAR_2", 20}, {"MEMID", 21},   {"CHKSUM", 22},  {"ACHAR", 23},
        {"ACHAR_2", 24},  {"ACHAR_4", 25}, {"CHAR_3", 26},  {"UCHAR_3", 27}, {"BCHAR_3", 28},
        {"ACHAR_3", 29},  {"LONG48", 30},
    };
    for (const auto& type : Types) {
        addCanasType(type.name, type.code);
    }
}

void Profile::addCanasType(const QString& name, int code)
{
    mTypeCodes[name] = code;
    mTypeNames[code] = name;
}

void Profile::clear()
{
    mInfo.clear();
    mParameters.clear();
    mEnumIds.clear();
    mThresholdIds.clear();
    mIsLoaded = false;
}

std::shared_ptr<const Profile> Profile::load(const QString& fileName, const Profile* before)
{
    auto profile = std::make_shared<Profile>();
    if (before != nullptr) {
        profile->mKmlInfo = before->mKmlInfo;
        profile->mTypeCodes = before->mTypeCodes;
        profile->mTypeNames = before->mTypeNames;
        profile->mParametersById = before->mParametersById;
    }
    profile->loadProfile(fileName);
    return profile;
}

bool Profile::loadProfile(const QString& fileName)
{
    clear();
    mFileName = fileName;
    XmlHandler xml;
    QDomDocument document;
    mFileHash.clear();
    const bool read = xml.xmlReadFile(document, fileName, &mFileHash);
    const QDomElement root = document.documentElement();
    if (root.tagName() != "CanAerospaceProfile") {
        if (read) {
            diagnose("no profile <%s>: its root element is <%s>\n", qUtf8Printable(fileName),
                     qUtf8Printable(root.tagName()));
        }
        return false;
    }
    diagnose("Load profile <%s> %d\n", qUtf8Printable(fileName), read ? 1 : 0);
    ProfileReader(*this).readRoot(root);
    for (const auto& [id, device] : mInfo.devices) {
        for (const auto& [uid, parameter] : device.parameters) {
            mParameters.push_back({&device, &parameter});
        }
    }
    mIsLoaded = true;
    return true;
}

const ProfileParameter& Profile::parameterById(unsigned id) const
{
    static const ProfileParameter none;
    const auto found = mParametersById.find(id);
    return found != mParametersById.end() ? found->second : none;
}

int Profile::getInt(const RecordEntry& entry, const ProfileParameter& parameter) const
{
    return Decoder(mInfo, parameter).toInt(entry);
}

int Profile::getInt(const RecordEntry& entry) const
{
    return getInt(entry, parameterById(entry.id));
}

double Profile::getDouble(const RecordEntry& entry, const ProfileParameter& parameter,
                          bool scaled) const
{
    return Decoder(mInfo, parameter).toDouble(entry, scaled);
}

double Profile::getDouble(const RecordEntry& entry, bool scaled) const
{
    return getDouble(entry, parameterById(entry.id), scaled);
}

int Profile::getState(const RecordEntry& entry, const ProfileParameter& parameter) const
{
    return Decoder(mInfo, parameter).state(entry);
}

QString Profile::getDataString(const RecordEntry& entry, const ProfileParameter& parameter,
                               QColor& color) const
{
    std::string text;
    color = Decoder(mInfo, parameter).appendDisplay(entry, text);
    return QString::fromStdString(text);
}

} // namespace TARN
