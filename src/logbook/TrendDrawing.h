#pragma once

#include "logbook/TrendLayout.h"

#include <QtGui/QColor>

class QPainter;
class QPalette;

namespace TARN {

/// Colours of a trend's picture, legible on its ground.
struct TrendColors
{
    QColor back;
    QColor text;
    QColor grid;
    QColor band;
    QColor median;
    QColor flight;
    QColor marked;

    static TrendColors of(const QPalette& palette);
};

/// Draws a trend: each flight's value, marked ones by shape and colour, the median and the band of
/// three sigmas of its baseline, and lines where maintenance was.
class TrendDrawing
{
public:
    /// All is referred to. \p notes of the engine, by date.
    TrendDrawing(const ParameterTrend& trend, const std::vector<MaintenanceMark>& notes,
                 const TrendLayout& layout, const TrendColors& colors)
        : mTrend(trend), mNotes(notes), mLayout(layout), mColors(colors)
    {}

    /// \p chosen flight stands in a ring.
    void draw(QPainter& painter, std::optional<std::size_t> chosen) const;

private:
    void drawScale(QPainter& painter) const;
    void drawDates(QPainter& painter) const;
    void drawBand(QPainter& painter) const;
    void drawNotes(QPainter& painter) const;
    void drawFlights(QPainter& painter) const;
    /// Number of notes up to each flight: flights of the same number have the same baseline.
    std::size_t notesBefore(std::size_t point) const;
    std::vector<std::pair<std::size_t, std::size_t>> baselines() const;

    const ParameterTrend& mTrend;
    const std::vector<MaintenanceMark>& mNotes;
    const TrendLayout& mLayout;
    const TrendColors& mColors;
};

} // namespace TARN
