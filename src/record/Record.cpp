#include "record/Record.h"

#include "base/Diagnostics.h"
#include "base/XmlHandler.h"
#include "record/RecordFile.h"

#include <cmath>

namespace TARN {

bool Record::readRecordInfo(const QString& path)
{
    mRecordInfo.fileName = path;
    RecordFile file;
    if (!file.open(path)) {
        diagnose("Could not open %s\n", qUtf8Printable(path));
        return false;
    }
    const HeaderFacts facts = parseRecordHeader(file.header(), mRecordInfo);
    mRecordInfo.samples = file.samples();
    mRecordInfo.startTime = facts.startTime;
    if (file.samples() > 0) {
        mRecordInfo.startTime = file.sampleTime(0, facts.swapped);
        mRecordInfo.stopTime = file.sampleTime(file.samples() - 1, facts.swapped);
    }
    return true;
}

bool Record::setOffset(double seconds)
{
    mRecordData.offset = seconds;
    return saveOffset();
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
    return xml.xmlWriteFile(document, path);
}

void Record::loadOffset()
{
    XmlHandler xml;
    QDomDocument document;
    if (!xml.xmlReadFile(document, mFolder, "Offset.xml")) {
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
