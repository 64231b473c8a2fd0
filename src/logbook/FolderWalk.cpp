#include "logbook/FolderWalk.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>

namespace TARN {

std::set<QString> foldersBelow(const QStringList& folders, const Progress& progress)
{
    std::set<QString> all;
    for (const QString& folder : folders) {
        const QString top = QFileInfo(folder).canonicalFilePath();
        all.insert(top);
        for (QDirIterator below(top, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                                QDirIterator::Subdirectories);
             !progress.stopRequested() && below.hasNext();) {
            all.insert(below.next());
        }
    }
    return all;
}

} // namespace TARN
