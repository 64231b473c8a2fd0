#include "graph/GraphPicture.h"

#include "graph/GraphDrawing.h"
#include "graph/GraphPalette.h"
#include "graph/PainterCanvas.h"
#include "graph/SvgCanvas.h"

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>

namespace TARN {

namespace {

constexpr int CaptionMargin = 3; ///< pixels on each side

QString& graphFamily()
{
    static QString family;
    return family;
}

} // namespace

void setGraphFontFamily(const QString& family)
{
    graphFamily() = family;
}

QFont graphFont()
{
    QFont font = graphFamily().isEmpty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont)
                                         : QFont(graphFamily());
    font.setPixelSize(13);
    return font;
}

void drawGraph(GraphModel& model, const GraphStyle& style, const KeyCursor& keyCursor,
               GraphCanvas& canvas, TextLayout& texts)
{
    texts.clear();
    model.layout().setLanes(
        style.lanesOn ? static_cast<unsigned>(model.hints().notes.lanes().size()) : 0);
    model.layout().prepare([&](const QString& text) { return texts.widthOf(text); },
                           texts.lineHeight(), style.leastMargin);
    GraphDrawing(model, style, keyCursor, canvas, texts).draw();
}

void paintTexts(QPainter& painter, const TextLayout& texts, const GraphStyle& style)
{
    const QFont font = graphFont();
    painter.setFont(font);
    const double ascent = QFontMetricsF(font).ascent();
    constexpr float Opacity = 0.7F; // a peak behind a name is seen all the same
    // Going back and forth between plates and texts takes longer than painting them.
    for (const TextLayout::Text& text : texts.texts()) {
        if (text.backed) {
            QColor plate = text.plate.value_or(style.back).toColor();
            plate.setAlphaF(text.plate ? 1.0F : Opacity);
            painter.fillRect(text.box.adjusted(-2.0, 0.0, 2.0, 0.0), plate);
        }
    }
    for (const TextLayout::Text& text : texts.texts()) {
        painter.setPen(text.color.toColor());
        painter.drawText(text.box.topLeft() + QPointF(0.0, ascent), text.text);
    }
}

QSize GraphPicture::wholeSize(const TextLayout& texts) const
{
    const int line = static_cast<int>(texts.lineHeight()) + 2 * CaptionMargin;
    return {size.width(), size.height() + (caption.isEmpty() ? 0 : line)};
}

QSize GraphPicture::wholeSize() const
{
    return wholeSize(TextLayout(QFontMetricsF(graphFont())));
}

/// Draws the shapes; the texts are placed, to be painted on top.
void GraphPicture::draw(GraphModel& model, GraphCanvas& canvas, TextLayout& texts) const
{
    GraphLayout& layout = model.layout();
    const QSizeF before = layout.size();
    layout.setSize(size.width(), size.height());
    drawGraph(model, style, keyCursor, canvas, texts);
    const QRectF area(CaptionMargin, size.height(), size.width() - 2 * CaptionMargin,
                      wholeSize(texts).height() - size.height());
    texts.add(texts.elided(caption, area.width()), area.topLeft() + QPointF(0, CaptionMargin),
              legibleOn(style.labelBack, style.label), area);
    layout.setSize(before.width(), before.height());
}

void GraphPicture::paint(QPainter& painter, GraphModel& model) const
{
    TextLayout texts{QFontMetricsF(graphFont())};
    painter.fillRect(QRect(QPoint(), wholeSize()), style.labelBack.toColor());
    PainterCanvas canvas(painter, size.height());
    draw(model, canvas, texts);
    paintTexts(painter, texts, style);
}

std::string GraphPicture::toSvg(GraphModel& model, const QString& label, int number) const
{
    TextLayout texts(SvgCanvas::Character, SvgCanvas::Line);
    SvgCanvas canvas(wholeSize(texts), size.height(), label, style.labelBack, number);
    draw(model, canvas, texts);
    canvas.addTexts(texts, style);
    return canvas.end();
}

QImage GraphPicture::toImage(GraphModel& model, double scale) const
{
    QImage image((QSizeF(wholeSize()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    paint(painter, model);
    return image;
}

QByteArray encodePicture(const GraphPicture& picture, GraphModel& model, const QString& file,
                         double scale)
{
    const QByteArray suffix = QFileInfo(file).suffix().toLatin1().toUpper();
    if (suffix == "SVG") {
        return QByteArray::fromStdString(picture.toSvg(model, picture.caption));
    }
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    const bool saved =
        picture.toImage(model, scale).save(&out, suffix.isEmpty() ? "BMP" : suffix.constData());
    return saved ? out.data() : QByteArray();
}

} // namespace TARN
