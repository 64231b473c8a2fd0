#include "profile/Project.h"

#include "base/XmlHandler.h"
#include "profile/Profile.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <set>

namespace TARN {

namespace {

constexpr const char* Root = "TarnProject";
constexpr const char* List = "Parameters";

/// Root element of a file; null where there is none.
QDomElement rootOf(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    xml.xmlReadFile(document, QString::fromStdString(file));
    return document.documentElement();
}

} // namespace

bool Project::readProject(const std::string& file)
{
    clear();
    XmlHandler xml;
    QDomDocument document;
    if (!xml.xmlReadFile(document, QString::fromStdString(file))) {
        return false;
    }
    std::set<std::string> seen;
    for (QDomElement list = document.documentElement().firstChildElement(List); !list.isNull();
         list = list.nextSiblingElement(List)) {
        for (QDomElement element = list.firstChildElement("Parameter"); !element.isNull();
             element = element.nextSiblingElement("Parameter")) {
            const std::string name = xml.xmlGetStdStringAttribute(element.attributes(), "name", "");
            if (seen.insert(name).second) {
                mNames.push_back(name);
            }
        }
    }
    return true;
}

bool Project::isProject(const std::string& file)
{
    const QDomElement root = rootOf(file);
    return root.tagName() == Root || !root.firstChildElement(List).isNull();
}

bool Project::mayReplace(const std::string& file)
{
    return !QFileInfo::exists(QString::fromStdString(file)) || rootOf(file).tagName() == Root;
}

bool Project::saveProject(const std::string& file, const Profile& profile,
                          const Selection& selection) const
{
    XmlHandler xml;
    QDomDocument document;
    QDomElement root = xml.xmlCreateElement(document, document, Root);
    QDomElement list = xml.xmlCreateElement(document, root, List);
    const auto add = [&](const std::string& name) {
        QDomElement element = xml.xmlCreateElement(document, list, "Parameter");
        // As it is compared when it is read: a name that is no valid Unicode has only this form.
        xml.xmlCreateAttribute(document, element, "name", name);
    };
    for (const ProfileParameter* parameter : selection.parameters(profile)) {
        add(parameter->name.toStdString());
    }
    std::ranges::for_each(unknownNames(profile), add);
    return xml.xmlWriteFile(document, QString::fromStdString(file));
}

Selection Project::selection(const Profile& profile) const
{
    const std::set<std::string> names(mNames.begin(), mNames.end());
    Selection selection;
    for (const auto& [device, parameter] : profile.parameters()) {
        if (names.contains(parameter->name.toStdString())) {
            selection.set(*parameter, true);
        }
    }
    return selection;
}

void Project::setSelection(const Profile& profile, const Selection& selection)
{
    const std::vector<std::string> unknown = unknownNames(profile);
    std::set<std::string> seen;
    mNames.clear();
    for (const ProfileParameter* parameter : selection.parameters(profile)) {
        const std::string name = parameter->name.toStdString();
        if (seen.insert(name).second) {
            mNames.push_back(name);
        }
    }
    mNames.insert(mNames.end(), unknown.begin(), unknown.end());
}

std::vector<std::string> Project::unknownNames(const Profile& profile) const
{
    std::set<std::string> known;
    for (const auto& [device, parameter] : profile.parameters()) {
        known.insert(parameter->name.toStdString());
    }
    std::vector<std::string> unknown;
    std::ranges::copy_if(mNames, std::back_inserter(unknown),
                         [&](const std::string& name) { return !known.contains(name); });
    return unknown;
}

} // namespace TARN
