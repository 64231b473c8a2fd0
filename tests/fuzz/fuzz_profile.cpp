/// Any bytes as a parameter profile: what is loaded is consistent and the same each time.

#include "fuzz/Fuzz.h"
#include "profile/Profile.h"

#include <tuple>

using namespace TARN;
using Fuzz::require;

namespace {

void checkParameter(const Profile& profile, const ProfileParameter& parameter)
{
    const ProfileInfo& info = profile.data();
    require(parameter.enumId == 0 || info.enums.contains(parameter.enumId));
    require(parameter.thresholdId == 0 || info.thresholds.contains(parameter.thresholdId));
    require(profile.parameterById(static_cast<unsigned>(parameter.id)).id == parameter.id);
}

/// All that a profile makes of a sample whose every byte differs from the next, so that any field
/// reads something.
auto summary(const Profile& profile, const ProfileParameter& parameter)
{
    const RecordEntry entry{{0, 2, 4, 8, 16, 32, 64, 128}, 1, 3, 0, 0, 0x1234, 0x5678, 1, 2};
    QColor color;
    const QString text = profile.getDataString(entry, parameter, color);
    const int state = profile.getState(entry, parameter);
    require(!text.isEmpty() && state >= StateOk && state <= StateLimit);
    return std::make_tuple(parameter.fullName, parameter.title(), parameter.viewId, text, color,
                           state, QString::number(profile.getDouble(entry, parameter, true)),
                           profile.getInt(entry, parameter), parameter.id, parameter.channel);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString file = Fuzz::write("profile.xml", {data, size});
    const auto profile = Profile::load(file);
    const auto again = Profile::load(file, profile.get());
    require(profile->isLoaded() || profile->parameters().empty());
    require(again->isLoaded() == profile->isLoaded() &&
            again->data().units.size() == profile->data().units.size() &&
            again->parameters().size() == profile->parameters().size());
    for (std::size_t k = 0; k < profile->parameters().size(); ++k) {
        const ProfileParameter& parameter = *profile->parameters()[k].parameter;
        checkParameter(*profile, parameter);
        require(summary(*profile, parameter) == summary(*again, *again->parameters()[k].parameter));
    }
    for (const FaultMatrix& matrix : profile->data().faultMatrices) {
        for (const auto& [bit, parameter] : matrix.parameters) {
            require(parameter.id == matrix.id && parameter.startBit == bit);
            require(bit >= 0 && bit < FaultMatrix::Bits);
        }
    }
    return 0;
}
