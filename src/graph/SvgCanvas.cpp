#include "graph/SvgCanvas.h"

#include "base/Numbers.h"
#include "base/XmlText.h"

#include <cmath>

namespace TARN {

namespace {

std::string nameOf(const GraphColor& color)
{
    return color.toColor().name().toStdString();
}

std::string escaped(const QString& text)
{
    return xmlEscaped(text, true).toStdString();
}

/// With blanks that no reader makes one of.
QString unbroken(QString text)
{
    constexpr QChar NoBreak(0xA0);
    return text.replace(' ', NoBreak);
}

} // namespace

SvgCanvas::SvgCanvas(const QSizeF& whole, double height, const QString& label,
                     const GraphColor& ground, int number)
    : mHeight(height), mName(QString("c%1-").arg(number).toStdString()),
      mOut(QString("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" "
                   "viewBox=\"0 0 %1 %2\" role=\"img\" style=\"font:13px "
                   "monospace\">\n<title>%3</title>\n")
               .arg(whole.width())
               .arg(whole.height())
               .arg(xmlEscaped(label, true))
               .toStdString())
{
    rectangle({QPointF(), whole}, ground, 1.0F);
}

void SvgCanvas::number(double value)
{
    appendTenths(value, mOut);
}

/// From the lower left corner, as all that is drawn; y counts down in a picture.
void SvgCanvas::point(double x, double y)
{
    number(x);
    mOut += ' ';
    number(mHeight - y);
}

void SvgCanvas::rectangle(const QRectF& box, const GraphColor& color, float alpha)
{
    mOut += "<rect x=\"";
    number(box.x());
    mOut += "\" y=\"";
    number(box.y());
    mOut += "\" width=\"";
    number(box.width());
    mOut += "\" height=\"";
    number(box.height());
    mOut += "\" fill=\"" + nameOf(color) + "\"";
    if (alpha < 1.0F) {
        const int percent = truncatedTo<int>(alpha * 100.0F + 0.5F);
        mOut += percent < 10 ? " fill-opacity=\"0.0" : " fill-opacity=\"0.";
        mOut += std::to_string(percent) + "\"";
    }
    mOut += "/>\n";
}

void SvgCanvas::clip(double x, double y, double width, double height)
{
    clipNone();
    mIsClipped = true;
    std::string name = mName;
    name += std::to_string(mClips++);
    mOut += "<clipPath id=\"" + name + "\">";
    rectangle({x, mHeight - y - height, width, height}, {}, 1.0F);
    mOut += "</clipPath>\n<g clip-path=\"url(#" + name + ")\">\n";
}

void SvgCanvas::clipNone()
{
    if (mIsClipped) {
        mOut += "</g>\n";
    }
    mIsClipped = false;
}

void SvgCanvas::fill(double left, double bottom, double right, double top, const GraphColor& color,
                     float alpha)
{
    rectangle({left, mHeight - top, right - left, top - bottom}, color, alpha);
}

void SvgCanvas::strip(const float* points, int count, const GraphColor& color)
{
    polyline(points, count, color, "");
}

void SvgCanvas::dashed(const float* points, int count, const GraphColor& color,
                       const GraphColor& between)
{
    strip(points, count, between);
    polyline(points, count, color, " stroke-dasharray=\"4\"");
}

void SvgCanvas::polyline(const float* points, int count, const GraphColor& color, const char* more)
{
    mOut += "<polyline fill=\"none\" stroke=\"" + nameOf(color) + "\"" + more + " points=\"";
    std::string last;
    for (int i = 0; i < count; ++i) {
        const std::size_t before = mOut.size();
        point(points[2 * i], points[2 * i + 1]);
        mOut += ' ';
        if (mOut.compare(before, std::string::npos, last) == 0) {
            mOut.resize(before); // the line is there already
        } else {
            last = mOut.substr(before);
        }
    }
    mOut += "\"/>\n";
}

void SvgCanvas::segments(const std::vector<float>& points, const GraphColor& color,
                         const char* more)
{
    if (points.size() < 4) {
        return;
    }
    mOut += "<path fill=\"none\" stroke=\"" + nameOf(color) + "\"" + more + " d=\"";
    for (std::size_t i = 0; i + 3 < points.size(); i += 4) {
        mOut += 'M';
        point(points[i], points[i + 1]);
        mOut += 'L';
        point(points[i + 2], points[i + 3]);
    }
    mOut += "\"/>\n";
}

void SvgCanvas::lines(const std::vector<float>& points, const GraphColor& color)
{
    segments(points, color, "");
}

void SvgCanvas::dotted(const std::vector<float>& points, const GraphColor& color)
{
    segments(points, color, " stroke-dasharray=\"1\"");
}

void SvgCanvas::dots(const float* points, int count, const GraphColor& color, float size)
{
    for (int i = 0; i < count; ++i) {
        rectangle(
            {points[2 * i] - size / 2.0, mHeight - points[2 * i + 1] - size / 2.0, size, size},
            color, 1.0F);
    }
}

double SvgCanvas::sharp(double pixel) const
{
    return std::floor(pixel) + 0.5;
}

void SvgCanvas::addTexts(const TextLayout& texts, const GraphStyle& style)
{
    constexpr double Ascent = 12.0;
    constexpr float Opacity = 0.7F; // a peak behind a name is seen all the same
    for (const TextLayout::Text& text : texts.texts()) {
        if (text.backed) {
            rectangle(text.box.adjusted(-2.0, 0.0, 2.0, 0.0), text.plate.value_or(style.back),
                      text.plate ? 1.0F : Opacity);
        }
    }
    for (const TextLayout::Text& text : texts.texts()) {
        mOut += "<text x=\"";
        number(text.box.x());
        mOut += "\" y=\"";
        number(text.box.y() + Ascent);
        mOut +=
            "\" fill=\"" + nameOf(text.color) + "\">" + escaped(unbroken(text.text)) + "</text>\n";
    }
}

std::string SvgCanvas::end()
{
    clipNone();
    mOut += "</svg>\n";
    return std::move(mOut);
}

} // namespace TARN
