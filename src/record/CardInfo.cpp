#include "record/CardInfo.h"

#include "base/Directory.h"
#include "record/Record.h"

namespace TARN {

namespace {

bool isRecordingName(const QString& name)
{
    return name.endsWith(".CAN") || name.endsWith(".can");
}

} // namespace

CardInfo readCard(const QString& folder)
{
    CardInfo card;
    card.path = folder;
    for (const std::string& entry : Directory(folder.toStdString()).entryList(false)) {
        const QString path = QString::fromStdString(entry);
        if (!isRecordingName(path) || Directory::exists(entry)) {
            continue;
        }
        Record record;
        record.readRecordInfo(path);
        card.records[path] = record.recordInfo();
    }
    return card;
}

} // namespace TARN
