#pragma once

#include "report/PdfFigures.h"
#include "report/ReportPages.h"

#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

namespace TARN {

/// A report as a PDF file. Needs fonts, so a QGuiApplication.
class PdfPages : public ReportPages
{
public:
    explicit PdfPages(ReportOptions::Paper paper);

    void begin(const QString& title, const QString& language) override;
    void heading(const QString& text) override;
    void subheading(const QString& text) override;
    void line(const std::vector<ReportText>& pieces) override;
    void table(const ReportTable& table) override;
    void figure(const QString& words, const std::vector<ReportFigure>& parts) override;

    /// The file.
    QByteArray toPdf();

private:
    void flush();
    void keepHeadings();
    void block(const QString& text, int size, bool isBold, int above);

    ReportOptions::Paper mPaper;
    QTextDocument mDocument;
    QTextCursor mCursor;
    std::vector<int> mHeadings; ///< numbers of their blocks
    QString mHeading;           ///< that was not written yet: it may have to stand on a figure
    PdfFigures* mFigures;       ///< belongs to the document
};

} // namespace TARN
