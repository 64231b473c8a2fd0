#pragma once

#include "base/Progress.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

namespace TARN {

/// The SHA-256 of the contents of files, one after the other in the order of their names, in
/// hexadecimal: the same as that of one file made of them. Nothing where one can't be read to its
/// end, or when it was asked to stop.
std::optional<QString> contentHash(std::vector<QString> files, Progress& progress);

} // namespace TARN
