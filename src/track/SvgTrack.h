#pragma once

#include "track/TrackCanvas.h"

#include <string>

namespace TARN {

/// Draws as the elements of an SVG picture: places are rounded to tenths of a pixel, texts are in
/// whatever font of equal widths the reader has. Needs no font, so no QGuiApplication.
class SvgTrack : public TrackCanvas
{
public:
    /// \p label says what the picture shows; pictures of one page have a \p number each.
    SvgTrack(const QSizeF& size, const QString& label, int number);

    void clip(const QRectF& area) override;
    void clipNone() override;
    void fill(const QRectF& area, const QColor& color) override;
    void line(const QPolygonF& points, const QColor& color, double width) override;
    void shape(const QPolygonF& points, const QColor& fill, const QColor& outline) override;
    void text(const QPointF& topLeft, const QString& text, const QColor& color) override;
    QSizeF sizeOf(const QString& text) const override;

    /// The picture; nothing can be drawn any more.
    std::string end();

private:
    void rectangle(const QRectF& area);
    void places(const QPolygonF& points);
    void paint(const char* attribute, const QColor& color);

    std::string mName; ///< of what it clips by
    std::string mOut;
    int mClips = 0;
    bool mIsClipped = false;
};

} // namespace TARN
