#pragma once

#include "profile/ProfileTypes.h"
#include "record/RecordEntry.h"

#include <functional>
#include <map>

namespace TARN {

/// The parameter profile: how the messages of a recording are to be understood. One for the
/// whole program. Loading invalidates every pointer and reference into it; views keep copies.
class Profile
{
public:
    static Profile* instance();

    /// Replaces the profile by the file's. False, with an empty profile, when the file can't be
    /// read or is no profile (reported on the diagnostic stream). What the file leaves out takes
    /// its default, unknown names count as none.
    bool loadProfile(const QString& fileName);
    void clear();

    ProfileInfo& data() { return mInfo; }
    const ProfileInfo& data() const { return mInfo; }
    KmlInfo kmlInfo() const { return mKmlInfo; }

    void addCanasType(const QString& name, int code);
    const std::map<QString, int>& typeCodes() const { return mTypeCodes; }

    /// The last parameter read with this identifier; one of no type when there is none. Kept
    /// over reloads for identifiers that the new profile does not name.
    const ProfileParameter& parameterById(unsigned id) const;

    /// Calls \p visit for every parameter, device by device, in document order.
    void
    forEachParameter(const std::function<void(const ProfileDevice&, ProfileParameter&)>& visit);
    /// The selected parameters in the same order, valid until the next load.
    std::vector<const ProfileParameter*> selectedParameters() const;

    // Decoding of one sample; Decoder is the same for many.
    int getInt(const RecordEntry& entry, const ProfileParameter& parameter) const;
    int getInt(const RecordEntry& entry) const;
    double getDouble(const RecordEntry& entry, const ProfileParameter& parameter,
                     bool scaled) const;
    double getDouble(const RecordEntry& entry, bool scaled) const;
    int getState(const RecordEntry& entry, const ProfileParameter& parameter) const;
    QString getDataString(const RecordEntry& entry, const ProfileParameter& parameter,
                          QColor& color) const;

private:
    friend class ProfileReader;

    Profile();

    ProfileInfo mInfo;
    KmlInfo mKmlInfo;
    std::map<QString, int> mTypeCodes;
    std::map<int, QString> mTypeNames;
    std::map<QString, int> mEnumIds;
    std::map<QString, int> mThresholdIds;
    std::map<unsigned, ProfileParameter> mParametersById;
};

} // namespace TARN
