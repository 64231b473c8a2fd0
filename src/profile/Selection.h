#pragma once

#include <set>
#include <vector>

namespace TARN {

class Profile;
struct ProfileParameter;

/// Which parameters of a profile are chosen. Holds for the profile whose parameters were put in.
class Selection
{
public:
    /// Every parameter of a profile.
    static Selection all(const Profile& profile);

    bool contains(const ProfileParameter& parameter) const;
    void set(const ProfileParameter& parameter, bool selected);
    bool empty() const { return mUids.empty(); }

    /// The chosen parameters, device by device in document order; valid as long as the profile.
    std::vector<const ProfileParameter*> parameters(const Profile& profile) const;

    friend bool operator==(const Selection&, const Selection&) = default;

private:
    std::set<int> mUids; ///< of the parameters
};

} // namespace TARN
