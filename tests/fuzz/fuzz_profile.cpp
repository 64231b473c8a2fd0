/// Any bytes as a parameter profile: what is loaded is consistent and the same each time.

#include "fuzz/Fuzz.h"
#include "profile/Profile.h"

#include <cmath>

using namespace TARN;

namespace {

/// Everything that loading made of the file, as text; parameters in document order.
QString summary(const ProfileInfo& info)
{
    QStringList lines = {info.name};
    for (const auto& [code, unit] : info.units) {
        lines << QString("%1 %2 %3").arg(code).arg(unit.acronym, unit.name);
    }
    for (const auto& [id, enumeration] : info.enums) {
        lines << QString("%1 %2").arg(id).arg(enumeration.name);
        for (const auto& [number, value] : enumeration.values) {
            lines << QString("%1 %2").arg(number).arg(value.label);
        }
    }
    for (const auto& [id, threshold] : info.thresholds) {
        lines << QString("%1 %2").arg(id).arg(threshold.name);
        for (const ProfileThrValue& value : threshold.values) {
            lines << QString("%1 %2 %3").arg(value.val).arg(value.state).arg(value.color.name());
        }
    }
    for (const auto& [id, device] : info.devices) {
        lines << QString("%1 %2").arg(id).arg(device.name);
        for (const auto& [uid, parameter] : device.parameters) {
            lines << QString("%1 %2 %3 %4")
                         .arg(parameter.fullName, parameter.title(), parameter.viewId)
                         .arg(parameter.id);
        }
    }
    return lines.join('\n');
}

bool isIdOrNone(int id, std::size_t count)
{
    return id >= 0 && id <= static_cast<int>(count);
}

void checkParameter(const Profile& profile, const ProfileParameter& parameter)
{
    const ProfileInfo& info = profile.data();
    Fuzz::require(isIdOrNone(parameter.enumId, info.enums.size()), "an enumeration that is there");
    Fuzz::require(isIdOrNone(parameter.thresholdId, info.thresholds.size()),
                  "a threshold that is there");
    Fuzz::require(profile.parameterById(static_cast<unsigned>(parameter.id)).id == parameter.id,
                  "a parameter is found by its identifier");
    // A sample whose every byte differs from the next, so that any field reads something.
    RecordEntry entry{{0, 2, 4, 8, 16, 32, 64, 128}, 1, 3, 0, 0, 0x1234, 0x5678, 1, 2};
    QColor color;
    const QString text = profile.getDataString(entry, parameter, color);
    Fuzz::require(!text.isEmpty(), "every sample has a text");
    profile.getDouble(entry, parameter, true);
    profile.getInt(entry, parameter);
    const int state = profile.getState(entry, parameter);
    Fuzz::require(state >= StateOk && state <= StateLimit, "one of the states");
}

void checkMatrices(const ProfileInfo& info)
{
    for (const FaultMatrix& matrix : info.faultMatrices) {
        for (const auto& [bit, parameter] : matrix.parameters) {
            Fuzz::require(parameter.id == matrix.id && parameter.startBit == bit,
                          "a matrix holds the bits of its identifier");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString file = Fuzz::write("profile.xml", {data, size});
    Profile& profile = *Profile::instance();
    const bool isLoaded = profile.loadProfile(file);
    const QString loaded = summary(profile.data());
    Fuzz::require(isLoaded || profile.data().devices.empty(), "a profile that fails is empty");
    profile.forEachParameter([&](const ProfileDevice&, const ProfileParameter& parameter) {
        checkParameter(profile, parameter);
    });
    checkMatrices(profile.data());
    Fuzz::require(profile.loadProfile(file) == isLoaded && summary(profile.data()) == loaded,
                  "a profile loads the same each time");
    return 0;
}
