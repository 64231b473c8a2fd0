#include "profile/ProfileReader.h"

#include "base/Diagnostics.h"

#include <cmath>

namespace TARN {

namespace {

/// Calls \p visit for every child element with this name.
template <typename Visitor>
void forEachChild(const QDomElement& parent, const char* name, Visitor visit)
{
    for (QDomElement child = parent.firstChildElement(name); !child.isNull();
         child = child.nextSiblingElement(name)) {
        visit(child);
    }
}

int stateOf(const QString& text)
{
    return text == "WARNING" ? StateWarning : text == "LIMIT" ? StateLimit : StateOk;
}

int errorTypeOf(const QString& text)
{
    return text == "Info"      ? ErrorInfo
           : text == "Warning" ? ErrorWarning
           : text == "Fault"   ? ErrorFault
                               : ErrorNone;
}

/// The toolkit now also reads "#aarrggbb", which was no colour when profiles were written.
QColor colorOf(const QString& text)
{
    const bool withAlpha = text.startsWith('#') && text.size() == 9;
    return withAlpha || !QColor::isValidColor(text) ? QColor() : QColor(text);
}

} // namespace

void ProfileReader::readRoot(const QDomElement& root)
{
    mProfile.mInfo.name = text(root, "name");
    for (QDomElement child = root.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        const QString name = child.tagName();
        if (name == "UnitList") {
            readUnits(child);
        } else if (name == "EnumList") {
            readEnums(child);
        } else if (name == "ThresholdList") {
            readThresholds(child);
        } else if (name == "Device") {
            readDevice(child);
        }
    }
}

void ProfileReader::readUnits(const QDomElement& list)
{
    forEachChild(list, "Unit", [this](const QDomElement& element) {
        ProfileUnit unit;
        unit.code = integer(element, "code");
        unit.acronym = text(element, "acronym");
        unit.name = text(element, "name");
        mProfile.mInfo.units[unit.code] = unit;
    });
}

void ProfileReader::readEnums(const QDomElement& list)
{
    forEachChild(list, "Enum", [this](const QDomElement& element) {
        ProfileEnum enumeration;
        enumeration.id = static_cast<int>(mProfile.mInfo.enums.size()) + 1;
        enumeration.name = text(element, "name");
        forEachChild(element, "Value", [&](const QDomElement& child) {
            ProfileEnumValue value;
            value.val = integer(child, "val");
            value.label = text(child, "label");
            enumeration.values[value.val] = value;
        });
        mProfile.mInfo.enums[enumeration.id] = enumeration;
        mProfile.mEnumIds[enumeration.name] = enumeration.id;
    });
}

void ProfileReader::readThresholds(const QDomElement& list)
{
    forEachChild(list, "Threshold", [this](const QDomElement& element) {
        ProfileThr threshold;
        threshold.id = static_cast<int>(mProfile.mInfo.thresholds.size()) + 1;
        threshold.name = text(element, "name");
        forEachChild(element, "Value", [&](const QDomElement& child) {
            ProfileThrValue value;
            value.val = mXml.xmlGetDoubleAttribute(child.attributes(), "val", 0.0);
            value.color = colorOf(text(child, "color"));
            value.state = stateOf(text(child, "state"));
            threshold.values.push_back(value);
        });
        mProfile.mInfo.thresholds[threshold.id] = threshold;
        mProfile.mThresholdIds[threshold.name] = threshold.id;
    });
}

void ProfileReader::readDevice(const QDomElement& element)
{
    ProfileDevice device;
    device.id = static_cast<int>(mProfile.mInfo.devices.size()) + 1;
    device.name = text(element, "name");
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == "ErrorMatrix") {
            readErrorMatrix(child);
        } else if (child.tagName() == "Parameter") {
            const ProfileParameter parameter = readParameter(child, device.name);
            noteKmlParameter(text(child, "kmlId"), parameter);
            store(device, parameter);
        }
    }
    mProfile.mInfo.devices[device.id] = device;
}

void ProfileReader::readErrorMatrix(const QDomElement& element)
{
    // Every parameter is offered to every matrix; a bound keeps that linear in the file's size.
    constexpr std::size_t MostMatrices = 1024;
    if (mProfile.mInfo.faultMatrices.size() == MostMatrices) {
        diagnose("more than %zu error matrices, <%s> is left out\n", MostMatrices,
                 qUtf8Printable(text(element, "name")));
        return;
    }
    FaultMatrix matrix;
    matrix.id = integer(element, "id");
    matrix.name = text(element, "name");
    mProfile.mInfo.faultMatrices.push_back(matrix);
}

ProfileParameter ProfileReader::readParameter(const QDomElement& element, const QString& device)
{
    const QDomNamedNodeMap attributes = element.attributes();
    ProfileParameter parameter;
    parameter.name = text(element, "name");
    parameter.fullName = device + "/" + parameter.name;
    parameter.unit = text(element, "unit");
    parameter.viewId = text(element, "viewId");
    parameter.id = integer(element, "id");
    parameter.startByte = integer(element, "startByte");
    parameter.startBit = integer(element, "startBit");
    parameter.endBit = integer(element, "endBit");
    parameter.channel = integer(element, "channel");
    parameter.offset = mXml.xmlGetDoubleAttribute(attributes, "offset", 0.0);
    parameter.factor = mXml.xmlGetDoubleAttribute(attributes, "factor", 1.0);
    // An unknown name is none, and stays known as that.
    parameter.dataType = mProfile.mTypeCodes[text(element, "dataType")];
    parameter.enumId = mProfile.mEnumIds[text(element, "enumId")];
    parameter.thresholdId = mProfile.mThresholdIds[text(element, "thresholdId")];
    parameter.errorType = errorTypeOf(text(element, "errorType"));
    readSteady(element, parameter);
    return parameter;
}

void ProfileReader::readSteady(const QDomElement& element, ProfileParameter& parameter)
{
    const auto percent = number(element, "steady");
    parameter.steady = percent && *percent >= 0.0 ? percent : std::nullopt;
    parameter.steadyAbove = number(element, "steadyAbove");
}

void ProfileReader::noteKmlParameter(const QString& kmlId, const ProfileParameter& parameter)
{
    KmlInfo& kml = mProfile.mKmlInfo;
    if (kmlId == "Latitude") {
        kml.latitudeChannel = parameter.channel;
        kml.latitudeId = parameter.id;
    } else if (kmlId == "Longitude") {
        kml.longitudeChannel = parameter.channel;
        kml.longitudeId = parameter.id;
    } else if (kmlId == "Altitude") {
        kml.altitudeChannel = parameter.channel;
        kml.altitudeId = parameter.id;
    }
}

void ProfileReader::store(ProfileDevice& device, const ProfileParameter& parameter)
{
    device.parameters[parameter.uid] = parameter;
    mProfile.mParametersById[static_cast<unsigned>(parameter.id)] = parameter;
    if (parameter.startBit < 0 || parameter.startBit >= FaultMatrix::Bits) {
        return; // no bit of a matrix
    }
    for (FaultMatrix& matrix : mProfile.mInfo.faultMatrices) {
        if (matrix.id == parameter.id) {
            matrix.parameters[parameter.startBit] = parameter;
        }
    }
}

QString ProfileReader::text(const QDomElement& element, const char* name)
{
    return mXml.xmlGetStringAttribute(element.attributes(), name, QString());
}

int ProfileReader::integer(const QDomElement& element, const char* name)
{
    return mXml.xmlGetIntAttribute(element.attributes(), name, 0);
}

/// Nothing where there is none: here 0 would mean something.
std::optional<double> ProfileReader::number(const QDomElement& element, const char* name)
{
    bool isNumber = false;
    const double value = text(element, name).toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace TARN
