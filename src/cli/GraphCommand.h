#pragma once

#include "cli/Inputs.h"

namespace TARN {

struct GraphArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    int width = 1280; ///< of the plot with its axes, pixels
    int height = 720;
    double scale = 1.0; ///< device pixels that make a pixel
    bool single = false;
    bool light = false;
    bool thresholds = true;
    bool events = true;
    bool lanes = true;
    bool words = true;
    bool caption = true;
    std::optional<double> cursor; ///< seconds; none is drawn without it
    std::string out;
    std::vector<std::string> files;
};

/// Draws the selected parameters, 30 at most, as the graph of the window does; in the form that
/// the file's name ends in. Needs a QGuiApplication, though no display.
void runGraph(const GraphArguments& arguments);

} // namespace TARN
