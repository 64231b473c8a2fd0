#include "profile/Project.h"

#include "base/XmlHandler.h"
#include "profile/Profile.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <cmath>
#include <set>

namespace TARN {

namespace {

constexpr const char* Root = "TarnProject";
constexpr const char* List = "Parameters";
constexpr const char* Curves = "Curves";

/// Root element of a file; null where there is none.
QDomElement rootOf(const std::string& file)
{
    XmlHandler xml;
    QDomDocument document;
    xml.xmlReadFile(document, QString::fromStdString(file));
    return document.documentElement();
}

/// Each once, in their order.
std::vector<std::string> namesIn(const QDomElement& root)
{
    XmlHandler xml;
    std::set<std::string> seen;
    std::vector<std::string> names;
    for (QDomElement list = root.firstChildElement(List); !list.isNull();
         list = list.nextSiblingElement(List)) {
        for (QDomElement element = list.firstChildElement("Parameter"); !element.isNull();
             element = element.nextSiblingElement("Parameter")) {
            const std::string name = xml.xmlGetStdStringAttribute(element.attributes(), "name", "");
            if (seen.insert(name).second) {
                names.push_back(name);
            }
        }
    }
    return names;
}

std::optional<double> numberOf(const QDomElement& element, const char* name)
{
    bool isNumber = false;
    const double number = element.attribute(name).toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

CurveLook lookOf(const QDomElement& element)
{
    CurveLook look;
    look.hidden = element.attribute("hidden") == "true";
    look.color = QColor(element.attribute("color"));
    const auto low = numberOf(element, "low");
    const auto high = numberOf(element, "high");
    if (low && high && *low < *high) {
        look.range = std::pair(*low, *high);
    }
    return look;
}

/// What is no look that the program knows is taken for none.
CurveLooks looksOf(const QDomElement& root)
{
    XmlHandler xml;
    CurveLooks looks;
    const QDomElement list = root.firstChildElement(Curves);
    const bool isOrdered = list.attribute("ordered") == "true";
    for (QDomElement element = list.firstChildElement("Curve"); !element.isNull();
         element = element.nextSiblingElement("Curve")) {
        const std::string name = xml.xmlGetStdStringAttribute(element.attributes(), "name", "");
        if (const CurveLook look = lookOf(element); look != CurveLook()) {
            looks.byName[name] = look;
        }
        if (isOrdered) {
            looks.order.push_back(name);
        }
    }
    return looks;
}

void addCurve(XmlHandler& xml, QDomDocument& document, QDomElement& list, const std::string& name,
              const CurveLook& look)
{
    QDomElement element = xml.xmlCreateElement(document, list, "Curve");
    xml.xmlCreateAttribute(document, element, "name", name);
    if (look.hidden) {
        xml.xmlCreateAttribute(document, element, "hidden", std::string("true"));
    }
    if (look.color.isValid()) {
        xml.xmlCreateAttribute(document, element, "color", look.color.name().toStdString());
    }
    if (look.range) {
        for (const auto& [key, number] :
             {std::pair("low", look.range->first), std::pair("high", look.range->second)}) {
            xml.xmlCreateAttribute(document, element, key,
                                   QString::number(number, 'g', 17).toStdString());
        }
    }
}

void addLooks(XmlHandler& xml, QDomDocument& document, QDomElement& root, const CurveLooks& looks)
{
    if (looks.empty()) {
        return;
    }
    QDomElement list = xml.xmlCreateElement(document, root, Curves);
    if (!looks.order.empty()) {
        xml.xmlCreateAttribute(document, list, "ordered", std::string("true"));
    }
    std::map<std::string, CurveLook> rest = looks.byName;
    for (const std::string& name : looks.order) {
        const auto node = rest.extract(name);
        addCurve(xml, document, list, name, node.empty() ? CurveLook() : node.mapped());
    }
    for (const auto& [name, look] : rest) {
        addCurve(xml, document, list, name, look);
    }
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
    mNames = namesIn(document.documentElement());
    mLooks = looksOf(document.documentElement());
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
    addLooks(xml, document, root, mLooks);
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
