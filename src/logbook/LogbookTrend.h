#pragma once

#include <QtCore/QString>

#include <optional>
#include <vector>

namespace TARN {

/// A note that something was done to an aircraft.
struct MaintenanceMark
{
    QString aircraft;
    qint64 date = 0; ///< seconds since 1970
    QString note;
};

/// A figure of one flight among the others.
struct TrendPoint
{
    QString flight;
    std::optional<qint64> start;  ///< seconds since 1970
    std::optional<double> value;  ///< finite
    std::optional<double> median; ///< of its baseline; nothing where there is none
    std::optional<double> sigma;  ///< likewise
    bool isMarked = false;
};

/// Fills in median, sigma and mark of points that are in the order of time, those without a start
/// first.
///
/// The baseline of a flight are the others with a value that lie, as it does, behind the same last
/// maintenance mark; there is none of fewer than five. m is its median (of an even number the mean
/// of the middle two), sigma s = 1.4826 x median of |v - m|; where that is 0, the smallest step
/// between different values of the baseline. A flight is marked when |v - m| > 3 s, or when it and
/// at least three of the four flights with a value before it, behind the same mark, differ from m
/// by more than s, all to the same side.
void markTrend(std::vector<TrendPoint>& points, const std::vector<MaintenanceMark>& marks);

} // namespace TARN
