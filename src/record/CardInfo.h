#pragma once

#include "base/Progress.h"
#include "record/RecordInfo.h"

#include <QtCore/QString>

#include <map>
#include <vector>

namespace TARN {

/// The recordings of a card folder.
struct CardInfo
{
    QString path;                          ///< the folder
    std::map<QString, RecordInfo> records; ///< by full path
};

/// Whether a file of this name is a recording: it ends in ".CAN" or ".can".
bool isRecordingName(const QString& name);

/// Whether a recording is of the unit whose clock the folder's time offset corrects: characters 5
/// to 8 of its name are a hexadecimal number above 7FFF.
bool isHighFile(const QString& path);

/// Full paths of the recordings of a folder, sorted.
std::vector<QString> cardFiles(const QString& folder);

/// Lists the recordings of a folder (files ending in ".CAN" or ".can", not of its sub-folders)
/// with what their headers say. Empty when the folder can't be opened.
CardInfo readCard(const QString& folder);
/// The same; ends early, with a part, when it is asked to stop.
CardInfo readCard(const QString& folder, Progress& progress);

} // namespace TARN
