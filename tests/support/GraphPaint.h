#pragma once

#include "graph/GraphPicture.h"

#include <cmath>
#include <vector>

/// One paint of a graph: keeps what would be drawn. Needs fonts, so a QGuiApplication.
class GraphPaint : private TARN::GraphCanvas
{
public:
    enum Kind
    {
        Fill,
        Strip,
        Lines,
        Dots,
        Dotted,
        Dashed
    };
    struct Shape
    {
        Kind kind;
        std::vector<float> points;
        TARN::GraphColor color;
        QRectF clip; ///< null where nothing is clipped
    };

    GraphPaint(TARN::GraphModel& model, QSizeF size, const TARN::GraphStyle& style = {},
               const TARN::KeyCursor& keyCursor = {})
        : texts(QFontMetricsF(QFont()))
    {
        model.layout().setSize(size.width(), size.height());
        TARN::drawGraph(model, style, keyCursor, *this, texts);
    }

    TARN::TextLayout texts;
    std::vector<Shape> shapes;

private:
    void add(Kind kind, std::vector<float> points, const TARN::GraphColor& color)
    {
        shapes.push_back({kind, std::move(points), color, mClip});
    }

    void clip(double x, double y, double width, double height) override
    {
        mClip = {x, y, width, height};
    }
    void clipNone() override { mClip = {}; }
    void fill(double left, double bottom, double right, double top, const TARN::GraphColor& color,
              float /*alpha*/) override
    {
        add(Fill, {float(left), float(bottom), float(right), float(top)}, color);
    }
    void strip(const float* points, int count, const TARN::GraphColor& color) override
    {
        add(Strip, {points, points + 2 * count}, color);
    }
    void dashed(const float* points, int count, const TARN::GraphColor& color,
                const TARN::GraphColor&) override
    {
        add(Dashed, {points, points + 2 * count}, color);
    }
    void lines(const std::vector<float>& points, const TARN::GraphColor& color) override
    {
        add(Lines, points, color);
    }
    void dotted(const std::vector<float>& points, const TARN::GraphColor& color) override
    {
        add(Dotted, points, color);
    }
    void dots(const float* points, int count, const TARN::GraphColor& color, float) override
    {
        add(Dots, {points, points + 2 * count}, color);
    }
    double sharp(double pixel) const override { return std::floor(pixel) + 0.5; }

    QRectF mClip;
};
