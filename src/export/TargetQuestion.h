#pragma once

#include <string>

class QWidget;

namespace TARN {

/// Whether a file may be written there; asks before an existing one is replaced and says what
/// is wrong otherwise.
bool confirmTarget(QWidget* parent, const std::string& directory, const std::string& fileName);

} // namespace TARN
