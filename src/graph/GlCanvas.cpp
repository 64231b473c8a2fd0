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

void GlCanvas::strip(const float* points, int count, const GraphColor& color)
{
    draw(GL_LINE_STRIP, points, count, color);
}

/// Each segment in one of two colours; none is longer than a dash.
void GlCanvas::dashed(const float* points, int count, const GraphColor& color,
                      const GraphColor& between)
{
    mPoints.clear();
    mDashes.clear();
    mGaps.clear();
    for (int k = 0; k < count; ++k) {
        addDashes(points + std::ptrdiff_t(2) * std::max(k - 1, 0), points + std::ptrdiff_t(2) * k);
    }
    glVertexPointer(2, GL_FLOAT, 0, mPoints.data());
    for (const auto& [ends, ink] : {std::pair(&mGaps, between), std::pair(&mDashes, color)}) {
        glColor4f(ink.red, ink.green, ink.blue, 1.0F);
        glDrawElements(GL_LINES, static_cast<GLsizei>(ends->size()), GL_UNSIGNED_INT, ends->data());
    }
}

/// The way from one point to the next, cut where dashes end.
void GlCanvas::addDashes(const float* start, const float* stop)
{
    constexpr float Dash = 4.0F; // pixels
    const auto add = [&](float x, float y, float left) {
        const auto number = static_cast<unsigned>(mPoints.size() / 2);
        mPoints.push_back(x);
        mPoints.push_back(y);
        if (number > 0) {
            auto& ends = (static_cast<int>(left / Dash) & 1) == 0 ? mDashes : mGaps;
            ends.push_back(number - 1);
            ends.push_back(number);
        }
    };
    float from = start[0];
    const float slope = stop[0] > from ? (stop[1] - start[1]) / (stop[0] - from) : 0.0F;
    const float end = std::min(stop[0], mWidth); // neighbours may lie far outside
    for (float edge = (std::floor(std::max(from, 0.0F) / Dash) + 1.0F) * Dash; edge < end;
         edge += Dash) {
        add(edge, stop[1] - (stop[0] - edge) * slope, from);
        from = edge;
    }
    add(stop[0], stop[1], from);
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
