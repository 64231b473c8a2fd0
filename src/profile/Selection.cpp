#include "profile/Selection.h"

#include "profile/Profile.h"

namespace TARN {

Selection Selection::all(const Profile& profile)
{
    Selection selection;
    for (const auto& [device, parameter] : profile.parameters()) {
        selection.set(*parameter, true);
    }
    return selection;
}

bool Selection::contains(const ProfileParameter& parameter) const
{
    return mUids.contains(parameter.uid);
}

void Selection::set(const ProfileParameter& parameter, bool selected)
{
    if (selected) {
        mUids.insert(parameter.uid);
    } else {
        mUids.erase(parameter.uid);
    }
}

std::vector<const ProfileParameter*> Selection::parameters(const Profile& profile) const
{
    std::vector<const ProfileParameter*> chosen;
    for (const auto& [device, parameter] : profile.parameters()) {
        if (contains(*parameter)) {
            chosen.push_back(parameter);
        }
    }
    return chosen;
}

} // namespace TARN
