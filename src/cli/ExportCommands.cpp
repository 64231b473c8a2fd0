#include "cli/ExportCommands.h"

#include "cli/ExportRun.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"

namespace TARN {

void runCsv(const CsvArguments& arguments)
{
    const ExportInput input = inputOf(arguments.profile, arguments.files, arguments.selection);
    CsvExportOptions options;
    complete(options, arguments.out, arguments.range, input.flight->range(input.offset));
    options.resolution = arguments.resolution;
    options.separator = arguments.separator == "tab" ? '\t' : arguments.separator[0];
    runExport(ExportCsv(options), input);
}

void runKml(const KmlArguments& arguments)
{
    const ExportInput input = inputOf(arguments.profile, arguments.files, arguments.selection);
    KmlExportOptions options = arguments.options;
    complete(options, arguments.out, arguments.range, input.flight->range(input.offset));
    runExport(ExportKml(options), input);
}

void runGpx(const GpxArguments& arguments)
{
    const ExportInput input = inputOf(arguments.profile, arguments.files, {});
    GpxExportOptions options = arguments.options;
    complete(options, arguments.out, arguments.range, input.flight->range(input.offset));
    runExport(ExportGpx(options), input);
}

void runCan(const CanArguments& arguments)
{
    ExportInput input;
    input.flight = Flight::make(loadRecord(arguments.files), std::make_shared<Profile>());
    CsvExportOptions options;
    // Its times carry no offset.
    complete(options, arguments.out, arguments.range, input.flight->range(0.0));
    runExport(ExportCan(options), input);
}

} // namespace TARN
