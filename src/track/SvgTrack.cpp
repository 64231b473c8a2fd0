#include "track/SvgTrack.h"

#include "base/Numbers.h"
#include "base/XmlText.h"

namespace TARN {

namespace {

// Of the texts, which stand where a font of these measures has room.
constexpr double Character = 7.23; // pixels, 0.602 of the size
constexpr double Line = 15.0;
constexpr double Ascent = 11.5;

} // namespace

SvgTrack::SvgTrack(const QSizeF& size, const QString& label, int number)
    : mName(QString("t%1-").arg(number).toStdString()),
      mOut(QString("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" "
                   "viewBox=\"0 0 %1 %2\" role=\"img\" style=\"font:12px "
                   "monospace\">\n<title>%3</title>\n")
               .arg(size.width())
               .arg(size.height())
               .arg(xmlEscaped(label, true))
               .toStdString())
{}

void SvgTrack::rectangle(const QRectF& area)
{
    mOut += "<rect";
    const std::pair<const char*, double> sides[] = {
        {"x", area.x()}, {"y", area.y()}, {"width", area.width()}, {"height", area.height()}};
    for (const auto& [name, value] : sides) {
        mOut += std::string(" ") + name + "=\"";
        appendTenths(value, mOut);
        mOut += '"';
    }
}

void SvgTrack::places(const QPolygonF& points)
{
    mOut += " points=\"";
    for (const QPointF& point : points) {
        appendTenths(point.x(), mOut);
        mOut += ' ';
        appendTenths(point.y(), mOut);
        mOut += ' ';
    }
    mOut += '"';
}

void SvgTrack::paint(const char* attribute, const QColor& color)
{
    mOut += std::string(" ") + attribute + "=\"" + color.name().toStdString() + '"';
    if (color.alpha() < 255) {
        mOut += std::string(" ") + attribute + "-opacity=\"";
        appendTenths(color.alphaF(), mOut);
        mOut += '"';
    }
}

void SvgTrack::clip(const QRectF& area)
{
    clipNone();
    const std::string name = mName + std::to_string(mClips++);
    mOut += "<clipPath id=\"" + name + "\">";
    rectangle(area);
    mOut += "/></clipPath>\n<g clip-path=\"url(#" + name + ")\">\n";
    mIsClipped = true;
}

void SvgTrack::clipNone()
{
    mOut += mIsClipped ? "</g>\n" : "";
    mIsClipped = false;
}

void SvgTrack::fill(const QRectF& area, const QColor& color)
{
    rectangle(area);
    paint("fill", color);
    mOut += "/>\n";
}

void SvgTrack::line(const QPolygonF& points, const QColor& color, double width)
{
    mOut += "<polyline fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\"";
    paint("stroke", color);
    mOut += " stroke-width=\"";
    appendTenths(width, mOut);
    mOut += '"';
    places(points.size() == 1 ? QPolygonF(points + points) : points);
    mOut += "/>\n";
}

void SvgTrack::shape(const QPolygonF& points, const QColor& fill, const QColor& outline)
{
    mOut += "<polygon";
    paint("fill", fill);
    paint("stroke", outline);
    places(points);
    mOut += "/>\n";
}

void SvgTrack::text(const QPointF& topLeft, const QString& text, const QColor& color)
{
    mOut += "<text x=\"";
    appendTenths(topLeft.x(), mOut);
    mOut += "\" y=\"";
    appendTenths(topLeft.y() + Ascent, mOut);
    mOut += '"';
    paint("fill", color);
    mOut += '>' + xmlEscaped(text, true).toStdString() + "</text>\n";
}

QSizeF SvgTrack::sizeOf(const QString& text) const
{
    return {static_cast<double>(text.size()) * Character, Line};
}

std::string SvgTrack::end()
{
    clipNone();
    mOut += "</svg>\n";
    return std::move(mOut);
}

} // namespace TARN
