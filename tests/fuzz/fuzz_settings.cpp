/// Any bytes as configuration, project and offset file: what is kept is read again as it was.

#include "base/Property.h"
#include "base/XmlHandler.h"
#include "fuzz/Fuzz.h"
#include "profile/Profile.h"
#include "profile/Project.h"
#include "record/Record.h"

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

void checkConfiguration(const QString& path)
{
    Property& property = *Property::instance();
    property.clear();
    property.readXmlFile(path.toStdString());
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
    Fuzz::require(record.saveOffset(), "an offset is written");
    Record again;
    Fuzz::require(again.readRecordData({recording}), "a recording without samples is read");
    // Kept with twelve decimals.
    Fuzz::require(std::fabs(again.recordData().offset - offset) <= 5.1e-13, "an offset is kept");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString path = Fuzz::write("input.xml", {data, size});
    checkConfiguration(path);
    checkProject(path);
    checkOffset({data, size});
    return 0;
}
