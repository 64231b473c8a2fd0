#pragma once

#include "cli/ReferenceInput.h"

namespace TARN {

struct ReportArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    std::string language = "en";
    bool letter = false; ///< paper, instead of A4
    std::string out;
    std::vector<std::string> files;
    ReferenceArguments reference; ///< without files: none
};

/// Writes what happened on a few pages, as HTML or PDF by the name of the file. PDF needs a
/// QGuiApplication, though no display. Fails where the reported range has no time in common with
/// the reference.
void runReport(const ReportArguments& arguments);

} // namespace TARN
