#pragma once

#include "base/OutputFile.h"
#include "report/ReportPages.h"

namespace TARN {

/// A report as one HTML file with its pictures inside, for screens and for the printer. It is
/// well-formed XML too, so that anything can read it.
class HtmlPages : public ReportPages
{
public:
    /// The file is open and lives as long.
    HtmlPages(OutputFile& file, ReportOptions::Paper paper) : mFile(file), mPaper(paper) {}

    void begin(const QString& title, const QString& language) override;
    void heading(const QString& text) override;
    void subheading(const QString& text) override;
    void line(const std::vector<ReportText>& pieces) override;
    void table(const ReportTable& table) override;
    void figure(const QString& words, const std::vector<ReportFigure>& parts) override;
    /// Once, after all else.
    void end();

private:
    void element(const char* name, const QString& text);
    void cells(const ReportTable& table, const std::vector<ReportText>& row);

    OutputFile& mFile;
    ReportOptions::Paper mPaper;
    int mPictures = 0;
};

} // namespace TARN
