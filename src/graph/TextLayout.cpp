#include "graph/TextLayout.h"

#include <algorithm>

namespace TARN {

double TextLayout::widthOf(const QString& text) const
{
    if (!mMetrics) {
        return std::ceil(static_cast<double>(text.size()) * mCharacter);
    }
    constexpr qsizetype Most = 1000;
    const auto known = mWidths.constFind(text);
    if (known != mWidths.constEnd()) {
        return *known;
    }
    if (mWidths.size() >= Most) {
        mWidths.clear();
    }
    return *mWidths.insert(text, std::ceil(mMetrics->horizontalAdvance(text)));
}

QString TextLayout::elided(const QString& text, double width, Qt::TextElideMode mode) const
{
    if (mMetrics) {
        return mMetrics->elidedText(text, mode, width);
    }
    const auto room = static_cast<qsizetype>(std::max(0.0, width) / mCharacter);
    if (text.size() <= room || room < 1) {
        return text.left(room);
    }
    const qsizetype front = mode == Qt::ElideRight ? room - 1 : room / 2;
    return text.left(front) + QChar(0x2026) + text.right(room - 1 - front);
}

bool TextLayout::add(const QString& text, QPointF topLeft, const GraphColor& color,
                     const QRectF& area, bool backed)
{
    return add({text, QRectF(topLeft, sizeOf(text)), color, backed}, area);
}

bool TextLayout::add(const Text& text, const QRectF& area)
{
    if (text.text.isEmpty() || !area.contains(text.box)) {
        return false;
    }
    mTexts.push_back(text);
    return true;
}

double TextLayout::freeFrom(double top, double left, double width) const
{
    constexpr double Gap = 5.0; // pixels
    QRectF box(left, top, width, lineHeight());
    while (const Text* other = hit(box)) {
        box.moveLeft(other->box.right() + Gap);
    }
    return box.left();
}

void TextLayout::addBetween(const QString& text, double top, double left, double right,
                            const GraphColor& color, bool backed)
{
    const QSizeF size = sizeOf(text);
    const double from = freeFrom(top, left, size.width());
    add({text, QRectF(QPointF(from, top), size), color, backed},
        QRectF(from, top, right - from, size.height()));
}

std::optional<unsigned> TextLayout::legendAt(QPointF place) const
{
    for (const Text& text : mTexts) {
        if (text.curve && text.box.contains(place)) {
            return text.curve;
        }
    }
    return std::nullopt;
}

void TextLayout::addNear(const QString& text, QPointF topLeft, const GraphColor& color,
                         const QRectF& area)
{
    constexpr double Gap = 5.0; // pixels
    QRectF box(topLeft, sizeOf(text));
    box.moveLeft(std::max(area.left(), std::min(box.left(), area.right() - box.width())));
    box.moveTop(std::max(area.top(), std::min(box.top(), area.bottom() - box.height())));
    while (box.right() <= area.right()) {
        if (const auto place = gapNear(box, area)) {
            mTexts.push_back({text, *place, color, true});
            return;
        }
        const Text* other = hit(box);
        if (other == nullptr) {
            return; // the area is too small
        }
        box.moveLeft(other->box.right() + Gap); // on, past what stands here
    }
}

/// The nearest free place for \p box straight above or below, itself included.
std::optional<QRectF> TextLayout::gapNear(const QRectF& box, const QRectF& area) const
{
    QRectF above = box;
    while (const Text* other = hit(above)) {
        above.moveBottom(other->box.top());
    }
    QRectF below = box;
    while (const Text* other = hit(below)) {
        below.moveTop(other->box.bottom());
    }
    const bool fitsAbove = area.contains(above);
    const bool fitsBelow = area.contains(below);
    if (fitsAbove && (!fitsBelow || box.top() - above.top() < below.top() - box.top())) {
        return above;
    }
    return fitsBelow ? std::optional(below) : std::nullopt;
}

const TextLayout::Text* TextLayout::hit(const QRectF& box) const
{
    const auto found =
        std::ranges::find_if(mTexts, [&](const Text& other) { return other.box.intersects(box); });
    return found != mTexts.end() ? &*found : nullptr;
}

} // namespace TARN
