#pragma once

#include "profile/ProfileTypes.h"
#include "record/RecordEntry.h"

#include <QtCore/QByteArray>

#include <map>
#include <memory>
#include <vector>

namespace TARN {

/// The parameter profile: how the messages of a recording are to be understood. Loaded once, it
/// never changes; whoever decodes with it shares it, so nothing that refers to its parts can be
/// left behind. Which parameters a user has chosen is no part of it, see Selection.
class Profile
{
public:
    /// A parameter with the device that it belongs to.
    struct Entry
    {
        const ProfileDevice* device;
        const ProfileParameter* parameter;
    };

    /// Empty, but for the table of data types.
    Profile();
    Profile(const Profile&) = delete;
    Profile& operator=(const Profile&) = delete;

    /// Loads a file. What \p before knew by identifier and as position, and the new file does
    /// not name, is known on. Never null; see isLoaded.
    static std::shared_ptr<const Profile> load(const QString& fileName,
                                               const Profile* before = nullptr);

    /// Replaces the profile by the file's. False, with an empty profile, when the file can't be
    /// read or is no profile (reported on the diagnostic stream). What the file leaves out takes
    /// its default, unknown names count as none. Only while nobody else has it.
    bool loadProfile(const QString& fileName);

    /// Whether it was read from a file.
    bool isLoaded() const { return mIsLoaded; }
    /// The file that it was, or should have been, read from.
    const QString& fileName() const { return mFileName; }
    /// SHA-256 of what the file held when it was read; empty when it could not be.
    const QByteArray& fileHash() const { return mFileHash; }

    const ProfileInfo& data() const { return mInfo; }
    KmlInfo kmlInfo() const { return mKmlInfo; }

    /// All parameters, device by device, in document order.
    const std::vector<Entry>& parameters() const { return mParameters; }

    void addCanasType(const QString& name, int code);
    const std::map<QString, int>& typeCodes() const { return mTypeCodes; }

    /// The last parameter read with this identifier; one of no type when there is none.
    const ProfileParameter& parameterById(unsigned id) const;

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

    void clear();

    ProfileInfo mInfo;
    KmlInfo mKmlInfo;
    QString mFileName;
    QByteArray mFileHash;
    bool mIsLoaded = false;
    std::vector<Entry> mParameters; ///< refers to mInfo
    std::map<QString, int> mTypeCodes;
    std::map<int, QString> mTypeNames;
    std::map<QString, int> mEnumIds;
    std::map<QString, int> mThresholdIds;
    std::map<unsigned, ProfileParameter> mParametersById;
};

} // namespace TARN
