#include "graph/GlCanvas.h"

#include <QtGui/QOpenGLContext>
#include <QtGui/QOpenGLFunctions>

#include <algorithm>
#include <cmath>
#include <utility>

namespace TARN {

void GlCanvas::begin(QSize size, double ratio, const GraphColor& background)
{
    mRatio = ratio;
    mWidth = static_cast<float>(size.width());
    // Text is painted in the same context, with shaders and buffers of its own.
    QOpenGLFunctions* functions = QOpenGLContext::currentContext()->functions();
    functions->glUseProgram(0);
    functions->glBindBuffer(GL_ARRAY_BUFFER, 0);
    for (unsigned attribute = 0; attribute < 3; ++attribute) {
        functions->glDisableVertexAttribArray(attribute);
    }
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_STENCIL_TEST);
    glDisable(GL_SCISSOR_TEST);
    glDisable(GL_TEXTURE_2D);
    glEnable(GL_BLEND);
    // The widget itself stays opaque under what is translucent.
    functions->glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE,
                                   GL_ONE_MINUS_SRC_ALPHA);
    glViewport(0, 0, static_cast<int>(std::lround(size.width() * ratio)),
               static_cast<int>(std::lround(size.height() * ratio)));
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(0.0, size.width(), 0.0, size.height(), -7000.0, 7000.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glLineWidth(static_cast<float>(ratio));
    glClearColor(background.red, background.green, background.blue, 1.0F);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glEnableClientState(GL_VERTEX_ARRAY);
}

void GlCanvas::end()
{
    glDisableClientState(GL_VERTEX_ARRAY);
    glFlush();
}

void GlCanvas::clip(double x, double y, double width, double height)
{
    const auto left = static_cast<int>(std::floor(x * mRatio));
    const auto bottom = static_cast<int>(std::floor(y * mRatio));
    const auto right = static_cast<int>(std::ceil((x + width) * mRatio));
    const auto top = static_cast<int>(std::ceil((y + height) * mRatio));
    glScissor(left, bottom, std::max(right - left, 0), std::max(top - bottom, 0));
    glEnable(GL_SCISSOR_TEST);
}

void GlCanvas::clipNone()
{
    glDisable(GL_SCISSOR_TEST);
}

void GlCanvas::fill(double left, double bottom, double right, double top, const GraphColor& color,
                    float alpha)
{
    const auto x0 = static_cast<float>(left);
    const auto x1 = static_cast<float>(right);
    const auto y0 = static_cast<float>(bottom);
    const auto y1 = static_cast<float>(top);
    const float points[] = {x0, y0, x1, y0, x1, y1, x0, y1};
    draw(GL_QUADS, points, 4, color, alpha);
}

/// Points above each other.
struct GlCanvas::Run
{
    float x;
    float first;
    float last;
    float low;
    float high;

    bool holds(float y) const { return low < high && y >= low && y <= high; }
};

/// What makes a strip. A column of a curve is many points above each other: they are one line from
/// the lowest to the highest. The way to the next column is left out where it is covered by both.
template <typename Add>
void GlCanvas::eachLine(const float* points, int count, Add add) const
{
    const auto ratio = static_cast<float>(mRatio);
    Run before{};
    for (int k = 0; k < count;) {
        const bool isFirst = k == 0;
        const float y = points[2 * k + 1];
        Run run{points[2 * k], y, y, y, y};
        for (; k < count && points[2 * k] == run.x; ++k) {
            run.last = points[2 * k + 1];
            run.low = std::min(run.low, run.last);
            run.high = std::max(run.high, run.last);
        }
        if (run.low < run.high) {
            add(column(run));
        }
        const bool isCovered = run.holds(before.last) && before.holds(run.first) &&
                               std::floor(run.x * ratio) - std::floor(before.x * ratio) <= 1.0F;
        if (!isFirst && !isCovered) {
            add(Line{before.x, before.last, run.x, run.first});
        }
        before = run;
    }
}

void GlCanvas::strip(const float* points, int count, const GraphColor& color)
{
    mLines.clear();
    eachLine(points, count, [this](const Line& line) { mLines.push_back(line); });
    drawLines(mLines, color);
    // A rasteriser in software works on these while the next are prepared.
    constexpr int WorthAStart = 16'000; // points
    mHanded += count;
    if (mHanded >= WorthAStart) {
        mHanded = 0;
        glFlush();
    }
}

/// Each line in one of two colours; none is longer than a dash.
void GlCanvas::dashed(const float* points, int count, const GraphColor& color,
                      const GraphColor& between)
{
    mLines.clear();
    mGaps.clear();
    eachLine(points, count, [this](const Line& line) { addDashes(line); });
    drawLines(mGaps, between);
    drawLines(mLines, color);
}

/// A line, cut where dashes end.
void GlCanvas::addDashes(Line line)
{
    constexpr float Dash = 4.0F; // pixels
    const auto linesAt = [this](float x) -> std::vector<Line>& {
        return (static_cast<int>(x / Dash) & 1) == 0 ? mLines : mGaps;
    };
    const float slope = line.x1 > line.x0 ? (line.y1 - line.y0) / (line.x1 - line.x0) : 0.0F;
    const float end = std::min(line.x1, mWidth); // neighbours may lie far outside
    for (float edge = (std::floor(std::max(line.x0, 0.0F) / Dash) + 1.0F) * Dash; edge < end;
         edge += Dash) {
        const float y = line.y1 - (line.x1 - edge) * slope;
        linesAt(line.x0).push_back({line.x0, line.y0, edge, y});
        line.x0 = edge;
        line.y0 = y;
    }
    linesAt(line.x0).push_back(line);
}

/// From the row of the lowest point to that of the highest, whole: where a line begins and ends, a
/// part of a row may not count, and the end does not.
GlCanvas::Line GlCanvas::column(const Run& run) const
{
    constexpr float Inside = 0.01F; // rows
    const auto ratio = static_cast<float>(mRatio);
    return {run.x, (std::floor(run.low * ratio) + Inside) / ratio, run.x,
            (std::floor(run.high * ratio) + 1.0F + Inside) / ratio};
}

void GlCanvas::drawLines(const std::vector<Line>& lines, const GraphColor& color) const
{
    draw(GL_LINES, lines.empty() ? nullptr : &lines.front().x0, static_cast<int>(lines.size()) * 2,
         color);
}

void GlCanvas::lines(const std::vector<float>& points, const GraphColor& color)
{
    draw(GL_LINES, points.data(), static_cast<int>(points.size() / 2), color);
}

void GlCanvas::dotted(const std::vector<float>& points, const GraphColor& color)
{
    constexpr float Step = 2.0F;
    std::vector<float> all;
    for (std::size_t i = 0; i + 3 < points.size(); i += 4) {
        for (float x = points[i], y = points[i + 1]; x <= points[i + 2] && y <= points[i + 3];) {
            all.insert(all.end(), {x, y});
            (points[i] == points[i + 2] ? y : x) += Step;
        }
    }
    dots(all.data(), static_cast<int>(all.size() / 2), color, 1.0F);
}

void GlCanvas::dots(const float* points, int count, const GraphColor& color, float size)
{
    glPointSize(size * static_cast<float>(mRatio));
    draw(GL_POINTS, points, count, color);
}

double GlCanvas::sharp(double pixel) const
{
    return (std::floor(pixel * mRatio) + 0.5) / mRatio;
}

void GlCanvas::draw(unsigned mode, const float* points, int count, const GraphColor& color,
                    float alpha) const
{
    glColor4f(color.red, color.green, color.blue, alpha);
    glVertexPointer(2, GL_FLOAT, 0, points);
    glDrawArrays(mode, 0, count);
}

} // namespace TARN
