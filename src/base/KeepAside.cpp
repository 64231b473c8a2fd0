#include "base/KeepAside.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

namespace TARN {

QString keepAside(const QString& path)
{
    if (!QFileInfo(path).isFile()) {
        return {};
    }
    QString name = path + ".damaged";
    for (int number = 2; QFileInfo::exists(name); ++number) {
        name = path + ".damaged" + QString::number(number);
    }
    return QFile::rename(path, name) ? name : QString();
}

} // namespace TARN
