#pragma once

#include <QtCore/QStringList>

#include <set>

namespace TARN {

/// Folders and all in them, each once, by their canonical paths; links to folders are not followed.
std::set<QString> foldersBelow(const QStringList& folders);

} // namespace TARN
