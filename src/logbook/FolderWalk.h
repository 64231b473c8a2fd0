#pragma once

#include "base/Progress.h"

#include <QtCore/QStringList>

#include <set>

namespace TARN {

/// Folders and all in them, each once, by their canonical paths; links to folders are not followed.
/// Ends early, with some of them, when it is asked to stop.
std::set<QString> foldersBelow(const QStringList& folders, const Progress& progress);

} // namespace TARN
