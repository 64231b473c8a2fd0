#pragma once

#include "graph/GraphCanvas.h"
#include "graph/GraphModel.h"
#include "graph/GraphStyle.h"
#include "graph/TextLayout.h"

#include <QtGui/QFont>

#include <string>

class QImage;
class QPainter;

namespace TARN {

/// The font of all texts in a graph: the system's of equal widths, or the one that was set.
QFont graphFont();
/// Once, before anything is drawn.
void setGraphFontFamily(const QString& family);

/// Lays the model out and draws it: shapes go to the canvas at once, texts are placed, to be
/// painted on top of them. \p texts is emptied first.
void drawGraph(GraphModel& model, const GraphStyle& style, const KeyCursor& keyCursor,
               GraphCanvas& canvas, TextLayout& texts);

/// Paints placed texts on their plates.
void paintTexts(QPainter& painter, const TextLayout& texts, const GraphStyle& style);

/// A picture of a graph for which no window is needed, with a caption in its lowest line.
struct GraphPicture
{
    GraphStyle style;
    KeyCursor keyCursor;
    QSize size; ///< of the graph, pixels; the caption stands below it
    QString caption;

    /// With the caption.
    QSize wholeSize() const;
    /// Paints from the painter's origin on. The model is laid out for its own size afterwards.
    void paint(QPainter& painter, GraphModel& model) const;
    /// \p scale device pixels make a pixel.
    QImage toImage(GraphModel& model, double scale) const;
    /// As SVG, with what it shows in words; pictures of one page have a \p number each. Needs no
    /// font, so no QGuiApplication.
    std::string toSvg(GraphModel& model, const QString& label, int number = 0) const;

private:
    QSize wholeSize(const TextLayout& texts) const;
    void draw(GraphModel& model, GraphCanvas& canvas, TextLayout& texts) const;
};

/// A file of a picture by the name's ending: SVG, or whatever images can be written as, BMP without
/// an ending; empty for an ending that none is known by. \p scale device pixels make a pixel.
QByteArray encodePicture(const GraphPicture& picture, GraphModel& model, const QString& file,
                         double scale);

} // namespace TARN
