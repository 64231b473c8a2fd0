#include "record/CardInfo.h"

#include "base/Directory.h"
#include "record/Record.h"

#include <algorithm>

namespace TARN {

bool isRecordingName(const QString& name)
{
    return name.endsWith(".CAN") || name.endsWith(".can");
}

bool isHighFile(const QString& path)
{
    return path.section('/', -1).mid(4, 4).toInt(nullptr, 16) > 32767;
}

std::vector<QString> cardFiles(const QString& folder)
{
    std::vector<QString> files;
    for (const std::string& entry : Directory(folder.toStdString()).entryList(false)) {
        const QString path = QString::fromStdString(entry);
        if (isRecordingName(path) && !Directory::exists(entry)) {
            files.push_back(path);
        }
    }
    std::ranges::sort(files);
    return files;
}

CardInfo readCard(const QString& folder)
{
    Progress none;
    return readCard(folder, none);
}

CardInfo readCard(const QString& folder, Progress& progress)
{
    CardInfo card;
    card.path = folder;
    const std::vector<QString> files = cardFiles(folder);
    for (const QString& path : files) {
        if (progress.stopRequested()) {
            break;
        }
        progress.report(card.records.size(), files.size());
        Record record;
        record.readRecordInfo(path);
        card.records[path] = record.recordInfo();
    }
    return card;
}

} // namespace TARN
