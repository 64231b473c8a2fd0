#include "base/Diagnostics.h"
#include "cli/Commands.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "faults/EventDetector.h"
#include "profile/Profile.h"
#include "record/Record.h"

namespace TARN {

namespace {

/// Sets what all exports share: where to, and from when to when.
template <typename Options>
void complete(Options& options, const std::string& out, const Range& range, const Record& record)
{
    const auto slash = out.rfind('/');
    options.directory = slash == std::string::npos ? "." : out.substr(0, slash);
    options.fileName = slash == std::string::npos ? out : out.substr(slash + 1);
    options.startTime = range.start.value_or(record.recordInfo().startTime);
    options.stopTime = range.stop.value_or(record.recordInfo().stopTime);
}

void check(const ExportResult& result)
{
    if (!result) {
        throw CommandFailure(result.message.toStdString());
    }
    if (!result.message.isEmpty()) {
        diagnose("%s\n", qUtf8Printable(result.message));
    }
}

} // namespace

void runCsv(const CsvArguments& arguments)
{
    Record record;
    loadInputs(arguments.profile, arguments.files, record);
    applySelection(arguments.selection);
    CsvExportOptions options;
    complete(options, arguments.out, arguments.range, record);
    options.resolution = arguments.resolution;
    options.separator = arguments.separator == "tab" ? '\t' : arguments.separator[0];
    check(ExportCsv(*Profile::instance()).exportData(record, options));
}

void runKml(const KmlArguments& arguments)
{
    Record record;
    loadInputs(arguments.profile, arguments.files, record);
    applySelection(arguments.selection);
    detectEvents(record, *Profile::instance());
    KmlExportOptions options = arguments.options;
    complete(options, arguments.out, arguments.range, record);
    check(ExportKml(*Profile::instance()).exportData(record, options));
}

void runCan(const CanArguments& arguments)
{
    Record record;
    loadInputs({}, arguments.files, record);
    CsvExportOptions options;
    complete(options, arguments.out, arguments.range, record);
    check(ExportCan().exportData(record, options));
}

} // namespace TARN
