#pragma once

#include <QtGui/QColor>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace TARN {

/// How a user wants to see the curve of a parameter.
struct CurveLook
{
    bool hidden = false;
    QColor color; ///< invalid where it is left to the program
    /// From low to high, which is greater; nothing where it is taken from what is in sight.
    std::optional<std::pair<double, double>> range;

    friend bool operator==(const CurveLook&, const CurveLook&) = default;
};

/// The same for all curves, by the names of their parameters.
struct CurveLooks
{
    std::map<std::string, CurveLook> byName; ///< those that differ from what the program does
    std::vector<std::string> order;          ///< of the strips; empty where it is the profile's

    bool empty() const { return byName.empty() && order.empty(); }
    friend bool operator==(const CurveLooks&, const CurveLooks&) = default;
};

} // namespace TARN
