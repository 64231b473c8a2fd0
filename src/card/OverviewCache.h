#pragma once

#include "flight/Overview.h"

#include <map>
#include <mutex>

namespace TARN {

/// What was found in recordings that were looked at before, kept in a small file. A recording is
/// known by path, size and time of change, together with the profile it was understood by. Any
/// number of threads may ask it.
class OverviewCache
{
public:
    /// Reads the file; one that is damaged, or is none, is as if it were empty.
    explicit OverviewCache(const QString& file);

    /// What files that make one flight are known by now. Asks the file system.
    static QString keyOf(const std::list<QString>& files, const Profile& profile);

    std::optional<Overview> find(const QString& key);
    void insert(const QString& key, const Overview& overview);

    /// Writes the file, whole or not at all, if anything is new. Of very many those stay that were
    /// asked for.
    void save();

private:
    struct Entry
    {
        Overview overview;
        bool isUsed = false;
    };

    QString mFile;
    std::mutex mGuard;
    std::map<QString, Entry> mEntries;
    bool mIsNew = false;
};

} // namespace TARN
