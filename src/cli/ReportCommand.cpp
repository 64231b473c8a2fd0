#include "cli/ReportCommand.h"

#include "cli/ExportRun.h"
#include "flight/Comparison.h"
#include "report/ExportReport.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>

namespace TARN {

namespace {

/// The program's texts in a language, for as long as this lives; the built-in ones are English.
class Language
{
public:
    explicit Language(const std::string& name)
    {
        if (mTranslator.load(":/cli/tarn_" + QString::fromStdString(name) + ".qm")) {
            QCoreApplication::installTranslator(&mTranslator);
        }
    }
    ~Language() { QCoreApplication::removeTranslator(&mTranslator); }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

private:
    QTranslator mTranslator;
};

} // namespace

void runReport(const ReportArguments& arguments)
{
    const Language language(arguments.language == "cs" ? "cz" : arguments.language);
    ExportInput input = inputOf(arguments.profile, arguments.files, arguments.selection);
    ReportOptions options;
    const TimeRange whole = input.flight->range(input.offset);
    complete(options, arguments.out, arguments.range, whole);
    if (!arguments.reference.files.empty()) {
        input.reference = referenceOf(arguments.reference, *input.flight, input.offset);
        commonTimeOf(commonRange(whole, options.range(), 0.0), *input.reference);
    }
    options.paper = arguments.letter ? ReportOptions::Letter : ReportOptions::A4;
    runExport(ExportReport(options), input);
}

} // namespace TARN
