#pragma once

#include "cli/Inputs.h"
#include "export/GpxExportOptions.h"
#include "export/KmlExportOptions.h"

namespace TARN {

struct CsvArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    int resolution = 100;
    std::string separator = ";"; ///< ";", "," or "tab"
    std::string out;
    std::vector<std::string> files;
};

struct KmlArguments
{
    std::string profile;
    SelectionArguments selection;
    Range range;
    KmlExportOptions options;
    std::string out;
    std::vector<std::string> files;
};

struct GpxArguments
{
    std::string profile;
    Range range;
    GpxExportOptions options;
    std::string out;
    std::vector<std::string> files;
};

struct CanArguments
{
    Range range;
    std::string out;
    std::vector<std::string> files;
};

// The exports write the file and nothing to a stream.
void runCsv(const CsvArguments& arguments);
void runKml(const KmlArguments& arguments);
void runGpx(const GpxArguments& arguments);
void runCan(const CanArguments& arguments);

} // namespace TARN
