#pragma once

#include <QtCore/QString>

namespace TARN {

/// The time offset of a card: seconds that are added to the times of those units whose clock is
/// corrected. It belongs to the folder of the recordings and is kept there as "Offset.xml".
class OffsetFile
{
public:
    explicit OffsetFile(const QString& folder) : mFolder(folder) {}

    /// The offset; \p present where there is no file that can be read. What is no finite number
    /// is 0.
    double load(double present) const;

    /// Writes the file; false when that failed. One that can't be read is kept aside before,
    /// never replaced.
    bool save(double seconds) const;

    /// Whether there is a file that can't be read.
    bool isDamaged() const;

    QString path() const { return mFolder + "/Offset.xml"; }

private:
    QString mFolder;
};

} // namespace TARN
