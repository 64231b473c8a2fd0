#include "export/KmlParts.h"

#include "base/XmlStream.h"

#include <QtGui/QColor>

#include <cstdio>

namespace TARN {

namespace {

constexpr int Opaque = 255;

void addMarkStyle(XmlStream& xml, const char* id, const std::string& color)
{
    xml.begin("Style", {{"id", id}});
    xml.begin("LabelStyle");
    xml.element("color", "ffffffff");
    xml.end();
    xml.begin("IconStyle");
    xml.element("color", kmlColor(color, Opaque));
    xml.end();
    xml.end();
}

} // namespace

std::string kmlColor(const std::string& rgb, int alpha)
{
    const QString name = "#" + QString::fromStdString(rgb);
    const QColor color = QColor::isValidColor(name) ? QColor(name) : QColor();
    char text[40];
    std::snprintf(text, sizeof text, "%02x%02x%02x%02x", static_cast<unsigned>(alpha),
                  static_cast<unsigned>(color.blue()), static_cast<unsigned>(color.green()),
                  static_cast<unsigned>(color.red()));
    return text;
}

void addMarkStyles(XmlStream& xml, const KmlExportOptions& options)
{
    addMarkStyle(xml, "normalPlacemark", options.placeMarkColor);
    addMarkStyle(xml, "errorPlacemark", options.errorMarkColor);
}

void addPathStyle(XmlStream& xml, const KmlExportOptions& options)
{
    xml.begin("Style");
    xml.begin("LineStyle");
    xml.element("color", kmlColor(options.lineColor, options.lineAlpha));
    xml.element("width", std::to_string(options.lineWidth));
    xml.end();
    xml.begin("PolyStyle");
    xml.element("color", kmlColor(options.polygonColor, options.polygonAlpha));
    xml.end();
    xml.end();
}

void addMarkItem(XmlStream& xml, const std::string& name, const std::string& value)
{
    xml.element("displayName", "<b>" + name + "</b>");
    xml.element("value", value);
}

} // namespace TARN
