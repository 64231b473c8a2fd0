#pragma once

#include "graph/GraphTypes.h"

#include <QtCore/QHash>
#include <QtCore/QRectF>
#include <QtGui/QFontMetricsF>

#include <cmath>
#include <optional>
#include <vector>

namespace TARN {

/// The texts of one paint, placed so that none runs out of the widget and those that have a say
/// in their place keep clear of the others. Pixels from the upper left corner, as text is painted.
class TextLayout
{
public:
    struct Text
    {
        QString text;
        QRectF box; ///< that the text fills
        GraphColor color;
        bool backed;                          ///< on a plate that sets it off from the curves
        std::optional<GraphColor> plate = {}; ///< its colour, where it is not the plot's
        std::optional<unsigned> curve = {};   ///< whose legend it is
    };

    explicit TextLayout(const QFontMetricsF& metrics)
        : mMetrics(metrics), mLine(std::ceil(metrics.height()))
    {}
    /// Without a font: every character is so many pixels wide, a line so many high.
    TextLayout(double character, double line) : mCharacter(character), mLine(line) {}

    void clear() { mTexts.clear(); }
    const std::vector<Text>& texts() const { return mTexts; }

    QSizeF sizeOf(const QString& text) const { return {widthOf(text), mLine}; }
    double widthOf(const QString& text) const;
    double lineHeight() const { return mLine; }

    /// A text cut, in the middle by default, where it is wider than so many pixels.
    QString elided(const QString& text, double width,
                   Qt::TextElideMode mode = Qt::ElideMiddle) const;

    /// Adds a text where it fits into \p area, else not at all.
    bool add(const QString& text, QPointF topLeft, const GraphColor& color, const QRectF& area,
             bool backed = false);
    bool add(const Text& text, const QRectF& area);

    /// Adds a text in a row, as far left between two columns as the texts that are there leave
    /// room; where they leave none it is left out.
    void addBetween(const QString& text, double top, double left, double right,
                    const GraphColor& color, bool backed);

    /// The first column, from \p left on, from which a row is free for a width.
    double freeFrom(double top, double left, double width) const;

    /// The curve whose legend is there.
    std::optional<unsigned> legendAt(QPointF place) const;

    /// Adds a text near a place: moved into the area, then up or down to the nearest gap between
    /// the texts that are there, or on to the right of them. Left out where there is none.
    void addNear(const QString& text, QPointF topLeft, const GraphColor& color, const QRectF& area);

private:
    std::optional<QRectF> gapNear(const QRectF& box, const QRectF& area) const;
    const Text* hit(const QRectF& box) const;

    std::optional<QFontMetricsF> mMetrics;
    double mCharacter = 0.0;
    double mLine = 0.0;
    mutable QHash<QString, double> mWidths; ///< measured; most texts come again with the next paint
    std::vector<Text> mTexts;
};

} // namespace TARN
