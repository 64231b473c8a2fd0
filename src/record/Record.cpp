#include "record/Record.h"

#include "base/Diagnostics.h"
#include "base/KeepAside.h"
#include "base/XmlHandler.h"
#include "record/RecordFile.h"

#include <QtCore/QFileInfo>

#include <cmath>

namespace TARN {

bool Record::readRecordInfo(const QString& path)
{
    mRecordInfo.fileName = path;
    RecordFile file;
    mRecordInfo.unreadable = !file.open(path);
    if (mRecordInfo.unreadable) {
        diagnose("Could not open %s\n", qUtf8Printable(path));
        return false;
    }
    file.describe(mRecordInfo);
    return true;
}

void Record::clear()
{
    const double offset = mRecordData.offset;
    mRecordData = RecordData();
    mRecordData.offset = offset;
    mIntegrity = RecordIntegrity();
}

bool Record::setOffset(double seconds)
{
    mRecordData.offset = seconds;
    const bool saved = saveOffset();
    if (saved) {
        mIntegrity.damagedOffset.clear();
    }
    return saved;
}

bool Record::saveOffset() const
{
    XmlHandler xml;
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "TarnOffset");
    QDomElement offset = xml.xmlCreateElement(document, root, "Offset");
    xml.xmlCreateAttribute(document, offset, "value", mRecordData.offset);
    const QString path = QString("%1/Offset.xml").arg(mFolder);
    diagnose("Write Offset <%s>\n", qUtf8Printable(path));
    QDomDocument old;
    const bool isDamaged = QFileInfo::exists(path) && !xml.xmlReadFile(old, mFolder, "Offset.xml");
    if (isDamaged && keepAside(path).isEmpty()) {
        return false;
    }
    return xml.xmlWriteFile(document, path);
}

void Record::loadOffset()
{
    XmlHandler xml;
    QDomDocument document;
    if (!xml.xmlReadFile(document, mFolder, "Offset.xml")) {
        const QString path = mFolder + "/Offset.xml";
        if (QFileInfo::exists(path)) {
            mIntegrity.damagedOffset = path;
        }
        return;
    }
    for (QDomElement element = document.documentElement().firstChildElement("Offset");
         !element.isNull(); element = element.nextSiblingElement("Offset")) {
        const double offset = xml.xmlGetDoubleAttribute(element.attributes(), "value", 0.0);
        mRecordData.offset = std::isfinite(offset) ? offset : 0.0;
    }
    diagnose("loadOffset %f\n", mRecordData.offset);
}

} // namespace TARN
