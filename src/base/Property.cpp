#include "base/Property.h"

#include "base/Diagnostics.h"
#include "base/KeepAside.h"
#include "base/Numbers.h"
#include "base/XmlHandler.h"

#include <QtCore/QFileInfo>

namespace TARN {

Property* Property::instance()
{
    static Property property;
    return &property;
}

void Property::setConfigFile(const std::string& file)
{
    mConfigFile = file;
}

bool Property::readXmlFile()
{
    mDamagedFile.clear();
    const QString file = QString::fromStdString(mConfigFile);
    if (!merge(mConfigFile) && QFileInfo(file).isFile() && QFileInfo(file).isReadable()) {
        const QString kept = keepAside(file);
        mDamagedFile = (kept.isEmpty() ? file : kept).toStdString();
        if (kept.isEmpty()) {
            mConfigFile.clear(); // where it can't be moved away it is not written over
        }
    }
    return true;
}

bool Property::readXmlFile(const std::string& file)
{
    merge(file);
    return true;
}

/// False when the file could not be read.
bool Property::merge(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    const bool read = xml.xmlReadFile(document, QString::fromStdString(file));
    for (QDomElement entry = document.documentElement().firstChildElement("Property");
         !entry.isNull(); entry = entry.nextSiblingElement("Property")) {
        const QDomNamedNodeMap attributes = entry.attributes();
        setString(xml.xmlGetStdStringAttribute(attributes, "id", ""),
                  xml.xmlGetStdStringAttribute(attributes, "value", ""));
    }
    diagnose("readXmlFile <%s> %d\n", file.c_str(), read ? 1 : 0);
    return read;
}

bool Property::writeXmlFile()
{
    return writeXmlFile(mConfigFile);
}

bool Property::writeXmlFile(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "TARN");
    for (const auto& [key, value] : mProperties) {
        if (value.empty()) {
            continue;
        }
        QDomElement entry = xml.xmlCreateElement(document, root, "Property");
        xml.xmlCreateAttribute(document, entry, "id", key);
        xml.xmlCreateAttribute(document, entry, "value", value);
    }
    xml.xmlWriteFile(document, QString::fromStdString(file));
    return true;
}

void Property::setString(const std::string& key, const std::string& value)
{
    mProperties[key] = value;
}

void Property::setInt(const std::string& key, int value)
{
    mProperties[key] = std::to_string(value);
}

void Property::setDouble(const std::string& key, double value)
{
    std::string text;
    appendGeneral(value, 6, text);
    mProperties[key] = text;
}

void Property::setSwitch(const std::string& key, bool value)
{
    mProperties[key] = value ? "true" : "false";
}

std::string Property::getString(const std::string& key, const std::string& def) const
{
    const std::string* text = find(key);
    return text != nullptr ? *text : def;
}

int Property::getInt(const std::string& key, int def) const
{
    const std::string* text = find(key);
    return text != nullptr ? leadingInt(*text) : def;
}

double Property::getDouble(const std::string& key, double def) const
{
    const std::string* text = find(key);
    return text != nullptr ? leadingDouble(*text) : def;
}

bool Property::getSwitch(const std::string& key, bool def) const
{
    const std::string* text = find(key);
    if (text == nullptr) {
        return def;
    }
    return *text == "true" || *text == "TRUE" || *text == "True";
}

void Property::clear()
{
    mProperties.clear();
}

const std::string* Property::find(const std::string& key) const
{
    const auto found = mProperties.find(key);
    return found != mProperties.end() ? &found->second : nullptr;
}

} // namespace TARN
