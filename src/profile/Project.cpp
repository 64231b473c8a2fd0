#include "profile/Project.h"

#include "base/XmlHandler.h"
#include "profile/Profile.h"

#include <QtCore/QFileInfo>

namespace TARN {

Project* Project::instance()
{
    static Project project;
    return &project;
}

void Project::clear()
{
    mParameters.clear();
    setProfileData();
}

void Project::setProfileData()
{
    Profile::instance()->forEachParameter(
        [this](const ProfileDevice&, ProfileParameter& parameter) {
            parameter.selected = mParameters.contains(parameter.name.toStdString());
        });
}

void Project::takeProfileData()
{
    Profile::instance()->forEachParameter(
        [this](const ProfileDevice&, const ProfileParameter& parameter) {
            mParameters.erase(parameter.name.toStdString());
        });
    for (const ProfileParameter* parameter : Profile::instance()->selectedParameters()) {
        mParameters.insert(parameter->name.toStdString());
    }
}

bool Project::readProject(const std::string& file)
{
    mParameters.clear();
    XmlHandler xml;
    QDomDocument document;
    if (!xml.xmlReadFile(document, QString::fromStdString(file))) {
        return false;
    }
    for (QDomElement list = document.documentElement().firstChildElement("Parameters");
         !list.isNull(); list = list.nextSiblingElement("Parameters")) {
        for (QDomElement element = list.firstChildElement("Parameter"); !element.isNull();
             element = element.nextSiblingElement("Parameter")) {
            mParameters.insert(xml.xmlGetStdStringAttribute(element.attributes(), "name", ""));
        }
    }
    setProfileData();
    return true;
}

bool Project::mayReplace(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    return !QFileInfo::exists(QString::fromStdString(file)) ||
           (xml.xmlReadFile(document, QString::fromStdString(file)) &&
            document.documentElement().tagName() == "TarnProject");
}

bool Project::saveProject(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, "TarnProject");
    QDomElement list = xml.xmlCreateElement(document, root, "Parameters");
    for (const ProfileParameter* parameter : Profile::instance()->selectedParameters()) {
        QDomElement element = xml.xmlCreateElement(document, list, "Parameter");
        // As it is compared when it is read: a name that is no valid Unicode has only this form.
        xml.xmlCreateAttribute(document, element, "name", parameter->name.toStdString());
    }
    return xml.xmlWriteFile(document, QString::fromStdString(file));
}

} // namespace TARN
