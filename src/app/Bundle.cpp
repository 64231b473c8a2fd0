#include "app/Bundle.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace TARN {

QString inBundle(const QString& path)
{
    if (!path.startsWith("orna.app/") || QFileInfo::exists(path)) {
        return path;
    }
    // The program lies in orna.app/Contents/MacOS.
    const QString own =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../../../" + path);
    return QFileInfo::exists(own) ? own : path;
}

} // namespace TARN
