#include "export/ExportSource.h"

#include "record/Record.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN {

QString sourceRefusal(const Record& record, const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    const auto isTarget = [&target](const FileIntegrity& file) {
        return QFileInfo(file.info.fileName).canonicalFilePath() == target;
    };
    if (target.isEmpty() || std::ranges::none_of(record.integrity().files, isTarget)) {
        return {};
    }
    return QCoreApplication::translate(
               "ExportTarget", "\"%1\" is the recording itself. Choose another name or folder.")
        .arg(path);
}

} // namespace TARN
