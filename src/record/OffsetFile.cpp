#include "record/OffsetFile.h"

#include "base/Diagnostics.h"
#include "base/KeepAside.h"
#include "base/XmlHandler.h"

#include <QtCore/QFileInfo>

#include <cmath>

namespace TARN {

double OffsetFile::load(double present) const
{
    XmlHandler xml;
    QDomDocument document;
    if (!xml.xmlReadFile(document, mFolder, "Offset.xml")) {
        return present;
    }
    for (QDomElement element = document.documentElement().firstChildElement("Offset");
         !element.isNull(); element = element.nextSiblingElement("Offset")) {
        const double offset = xml.xmlGetDoubleAttribute(element.attributes(), "value", 0.0);
        present = std::isfinite(offset) ? offset : 0.0;
    }
    diagnose("loadOffset %f\n", present);
    return present;
}

bool OffsetFile::save(double seconds) const
{
    XmlHandler xml;
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "TarnOffset");
    QDomElement offset = xml.xmlCreateElement(document, root, "Offset");
    xml.xmlCreateAttribute(document, offset, "value", seconds);
    diagnose("Write Offset <%s>\n", qUtf8Printable(path()));
    if (isDamaged() && keepAside(path()).isEmpty()) {
        return false;
    }
    return xml.xmlWriteFile(document, path());
}

bool OffsetFile::isDamaged() const
{
    XmlHandler xml;
    QDomDocument document;
    return QFileInfo::exists(path()) && !xml.xmlReadFile(document, mFolder, "Offset.xml");
}

} // namespace TARN
