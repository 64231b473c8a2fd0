#pragma once

#include <QtCore/QString>

#include <cstddef>

namespace TARN {

class Profile;
class RecordData;

/// Messages of a recording that its profile does not describe: no view can show them.
struct UnknownIdentifiers
{
    std::size_t identifiers = 0; ///< the same identifier on another channel counts as another
    std::size_t samples = 0;

    /// One line to be shown; empty when there are none.
    QString remark() const;
};

/// Identifiers known are those of parameters and fault matrices and those of date and time,
/// which the reader understands itself.
UnknownIdentifiers unknownIdentifiers(const RecordData& data, const Profile& profile);

} // namespace TARN
