#include "report/ExportReport.h"

#include "report/HtmlPages.h"
#include "report/PdfPages.h"
#include "report/ReportCharts.h"
#include "report/ReportComparison.h"
#include "report/ReportHead.h"
#include "report/ReportLists.h"
#include "report/ReportNumbers.h"
#include "report/ReportTrack.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct ReportTexts
{
    Q_DECLARE_TR_FUNCTIONS(ExportReport)
};

ReportMatter matterOf(const ExportInput& input, const TimeRange& range, Progress& progress)
{
    Troubles troubles = input.flight->troubles(input.offset, progress);
    const FlightSummary summary = summaryOf(*input.flight, input.offset, troubles, range);
    return {input, range, std::move(troubles), summary};
}

void writePages(const ReportMatter& matter, ReportPages& pages, Progress& progress)
{
    pages.begin(reportTitle(matter.flight()), reportLanguage());
    writeHead(matter, pages);
    writeAnswer(matter, pages);
    writeLists(matter, pages);
    ReportCharts charts(matter, pages, progress);
    charts.writeWorst();
    charts.writeWhole();
    writeTrack(matter, pages, progress);
    writeNumbers(matter, pages, progress);
    writeComparison(matter, charts, pages, progress);
    writeRemarks(matter, pages);
}

} // namespace

ExportResult ExportReport::write(const ExportInput& input, Progress& progress)
{
    const QString suffix = QFileInfo(path()).suffix().toLower();
    if (suffix != "html" && suffix != "htm" && suffix != "pdf") {
        return ExportResult::failure(
            ReportTexts::tr(
                "\"%1\": a report is a web page or a PDF; end the name in .html or .pdf.")
                .arg(path()));
    }
    OutputFile file(path());
    const auto fail = [&] {
        return ExportResult::failure(
            ReportTexts::tr("\"%1\" can't be written: %2. Choose another folder; the old file, if "
                            "there was one, is unchanged.")
                .arg(path(), file.errorText()));
    };
    if (!file.open()) {
        return fail();
    }
    const ReportMatter matter = matterOf(input, mOptions.range(), progress);
    if (suffix == "pdf") {
        PdfPages pages(mOptions.paper);
        writePages(matter, pages, progress);
        if (!progress.stopRequested()) {
            file.write(pages.toPdf().toStdString());
        }
    } else {
        HtmlPages pages(file, mOptions.paper);
        writePages(matter, pages, progress);
        pages.end();
    }
    if (progress.stopRequested()) {
        return ExportResult::stopped();
    }
    return file.commit() ? ExportResult::success() : fail();
}

} // namespace TARN
