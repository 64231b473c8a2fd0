/// Any bytes as configuration, project and offset file: what is kept is read again as it was.

#include "base/Property.h"
#include "base/XmlHandler.h"
#include "fuzz/Fuzz.h"
#include "profile/Profile.h"
#include "profile/Project.h"
#include "record/Record.h"

#include <QtCore/QFile>

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

using namespace TARN;

namespace {

constexpr const char* Absent = "(absent)";

/// The attribute of every element with this name, at any depth.
std::vector<QString> attributesOf(const QString& path, const QString& element, const QString& name)
{
    std::vector<QString> values;
    QDomDocument document;
    XmlHandler().xmlReadFile(document, path);
    const QDomNodeList found = document.elementsByTagName(element);
    for (int i = 0; i < found.count(); ++i) {
        values.push_back(found.at(i).toElement().attribute(name));
    }
    return values;
}

bool isReadable(const QString& path)
{
    QDomDocument document;
    return XmlHandler().xmlReadFile(document, path);
}

/// What could not be read lies beside its place, byte for byte. Takes it away, for the next run.
void checkKeptAside(const QString& name, Fuzz::Bytes bytes)
{
    const QByteArray kept = Fuzz::read(name + ".damaged");
    Fuzz::require(std::ranges::equal(kept, bytes, {}, [](char c) { return std::uint8_t(c); }),
                  "a damaged file is kept aside");
    Fuzz::require(QFile::remove(Fuzz::path(name + ".damaged")), "what is kept aside is a file");
}

void checkConfiguration(const QString& path, Fuzz::Bytes bytes)
{
    Property& property = *Property::instance();
    property.clear();
    const QString config = Fuzz::write("config.xml", bytes);
    property.setConfigFile(config.toStdString());
    property.readXmlFile();
    if (!isReadable(path)) {
        checkKeptAside("config.xml", bytes);
    }
    std::map<std::string, std::string> settings;
    for (const QString& key : attributesOf(path, "Property", "id")) {
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
        Fuzz::require(property.getString(id, Absent) == value, "a setting is kept");
    }
}

/// A profile whose parameters have the names that the project mentions, and one more.
void useParameters(const std::vector<QString>& names)
{
    ProfileInfo& info = Profile::instance()->data();
    info.clear();
    ProfileDevice& device = info.devices[1];
    ProfileParameter parameter;
    parameter.uid = 0;
    parameter.name = "Oil pressure";
    device.parameters[parameter.uid] = parameter;
    for (const QString& name : names) {
        parameter.name = name;
        device.parameters[++parameter.uid] = parameter;
    }
}

std::vector<bool> marks()
{
    std::vector<bool> selected;
    Profile::instance()->forEachParameter(
        [&](const ProfileDevice&, const ProfileParameter& parameter) {
            selected.push_back(parameter.selected);
        });
    return selected;
}

void checkProject(const QString& path)
{
    useParameters(attributesOf(path, "Parameter", "name"));
    Project& project = *Project::instance();
    project.clear();
    const bool isRead = project.readProject(path.toStdString());
    const std::vector<bool> selected = marks();
    Fuzz::require(isRead || selected == std::vector<bool>(selected.size()),
                  "a project that can't be read marks nothing");
    const std::string copy = Fuzz::path("project.xml").toStdString();
    Fuzz::require(project.saveProject(copy), "a project is written");
    Fuzz::require(Project::mayReplace(copy), "a project may be replaced by another");
    project.clear();
    Fuzz::require(project.readProject(copy) && marks() == selected, "a project is kept");
}

void checkOffset(Fuzz::Bytes bytes)
{
    Fuzz::write("Offset.xml", bytes);
    const std::uint8_t header[128] = {};
    const QString recording = Fuzz::write("REC_0000.CAN", header);
    Record record;
    Fuzz::require(record.readRecordData({recording}), "a recording without samples is read");
    const double offset = record.recordData().offset;
    Fuzz::require(std::isfinite(offset), "an offset is a number");
    const bool isDamaged = !isReadable(Fuzz::path("Offset.xml"));
    Fuzz::require(record.integrity().damagedOffset.isEmpty() != isDamaged, "damage is told");
    Fuzz::require(record.saveOffset(), "an offset is written");
    if (isDamaged) {
        checkKeptAside("Offset.xml", bytes);
    }
    Record again;
    Fuzz::require(again.readRecordData({recording}), "a recording without samples is read");
    // Kept with twelve decimals.
    Fuzz::require(std::fabs(again.recordData().offset - offset) <= 5.1e-13, "an offset is kept");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = Fuzz::write("input.xml", {data, size});
    checkConfiguration(path, {data, size});
    checkProject(path);
    checkOffset({data, size});
    return 0;
}
