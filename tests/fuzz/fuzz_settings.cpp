/// Any bytes as configuration, project and offset file: what is kept is read again as it was.

#include "base/Property.h"
#include "base/XmlHandler.h"
#include "fuzz/Fuzz.h"
#include "profile/Profile.h"
#include "profile/Project.h"
#include "record/OffsetFile.h"

#include <cmath>
#include <map>
#include <vector>

using namespace TARN;
using Fuzz::require;

namespace {

constexpr const char* Absent = "(absent)";

/// An input, as whatever file it is read.
struct Document
{
    explicit Document(Fuzz::Bytes content) : bytes(content)
    {
        isReadable = XmlHandler().xmlReadFile(xml, Fuzz::write("input.xml", bytes));
    }

    /// The attribute of every element with this name, at any depth.
    std::vector<QString> attributes(const QString& element, const QString& name) const
    {
        std::vector<QString> values;
        const QDomNodeList found = xml.elementsByTagName(element);
        for (int i = 0; i < found.count(); ++i) {
            values.push_back(found.at(i).toElement().attribute(name));
        }
        return values;
    }

    /// What can't be read lies beside its place, byte for byte. Takes it away, for the next run.
    void checkKeptAside(const QString& name) const
    {
        if (!isReadable) {
            const auto byte = [](char c) { return static_cast<std::uint8_t>(c); };
            require(std::ranges::equal(Fuzz::read(name + ".damaged"), bytes, {}, byte));
            require(QFile::remove(Fuzz::path(name + ".damaged")));
        }
    }

    Fuzz::Bytes bytes;
    QDomDocument xml;
    bool isReadable = false;
};

void checkConfiguration(const Document& document)
{
    Property& property = *Property::instance();
    property.clear();
    property.setConfigFile(Fuzz::write("config.xml", document.bytes).toStdString());
    property.readXmlFile();
    document.checkKeptAside("config.xml");
    std::map<std::string, std::string> settings;
    for (const QString& key : document.attributes("Property", "id")) {
        const std::string id = key.toStdString();
        const std::string value = property.getString(id, Absent);
        property.getInt(id, 0);
        property.getDouble(id, 0.0);
        property.getSwitch(id, false);
        settings[id] = value.empty() ? Absent : value; // what is empty is not kept
    }
    const std::string copy = Fuzz::path("settings.xml").toStdString();
    property.writeXmlFile(copy);
    property.clear();
    property.readXmlFile(copy);
    for (const auto& [id, value] : settings) {
        require(property.getString(id, Absent) == value);
    }
}

/// A profile that has a parameter of every other one of these names.
std::shared_ptr<const Profile> profileWith(const std::vector<QString>& names)
{
    QString xml = "<CanAerospaceProfile><Device>";
    for (std::size_t k = 0; k < names.size(); k += 2) {
        xml += "<Parameter name=\"" + names[k].toHtmlEscaped() + "\"/>";
    }
    const QByteArray text = (xml + "</Device></CanAerospaceProfile>").toUtf8();
    return Profile::load(Fuzz::write("profile.xml", Fuzz::bytesOf(text)));
}

void checkProject(const Document& document)
{
    const auto profile = profileWith(document.attributes("Parameter", "name"));
    const std::string copy = Fuzz::path("project.xml").toStdString();
    Project project;
    const bool isRead = project.readProject(Fuzz::path("input.xml").toStdString());
    const Selection selection = project.selection(*profile);
    const auto unknown = project.unknownNames(*profile);
    require(isRead == document.isReadable && (isRead || (selection.empty() && unknown.empty())));
    require(project.saveProject(copy, *profile, selection) && Project::mayReplace(copy));
    Project again;
    require(again.readProject(copy) && again.selection(*profile) == selection);
    require(again.unknownNames(*profile) == unknown);
}

void checkOffset(const Document& document)
{
    Fuzz::write("Offset.xml", document.bytes);
    const OffsetFile file(Fuzz::path("."));
    const double offset = file.load(7.0);
    require(document.isReadable ? std::isfinite(offset) : offset == 7.0);
    require(file.isDamaged() != document.isReadable && file.save(offset));
    document.checkKeptAside("Offset.xml");
    require(std::fabs(file.load(7.0) - offset) <= 5.1e-13); // kept with twelve decimals
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Document document({data, size});
    checkConfiguration(document);
    checkProject(document);
    checkOffset(document);
    return 0;
}
