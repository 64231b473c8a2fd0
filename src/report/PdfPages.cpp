#include "report/PdfPages.h"

#include "base/CellColor.h"
#include "base/Revision.h"

#include <QtCore/QBuffer>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtGui/QPicture>
#include <QtGui/QTextTable>

#include <cmath>
#include <utility>

namespace TARN {

namespace {

constexpr int HeadingSize = 15; ///< pixels
constexpr int TextSize = 11;    ///< pixels, 96 to the inch
constexpr int CellSize = 10;    ///< of texts in tables
constexpr int PageMargin = 52;  ///< pixels on each side
constexpr int Foot = 24;        ///< pixels of the line under each page

QTextCharFormat formatOf(int size, bool isBold)
{
    QFont font;
    font.setFamilies({"DejaVu Sans", "Verdana", "Arial"});
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(size);
    font.setBold(isBold);
    QTextCharFormat format;
    format.setFont(font);
    return format;
}

QTextBlockFormat blockOf(int above, Qt::Alignment alignment)
{
    QTextBlockFormat format;
    format.setTopMargin(above);
    format.setAlignment(alignment);
    return format;
}

} // namespace

PdfPages::PdfPages(ReportOptions::Paper paper)
    : mPaper(paper), mCursor(&mDocument), mFigures(new PdfFigures(&mDocument))
{
    mDocument.setUndoRedoEnabled(false);
    mDocument.setDocumentMargin(0.0);
    mDocument.setDefaultFont(formatOf(TextSize, false).font());
    mDocument.documentLayout()->registerHandler(PdfFigures::Type, mFigures);
    mCursor.beginEditBlock(); // all is laid out once, when it is complete
}

void PdfPages::begin(const QString& title, const QString&)
{
    constexpr int Size = 20;
    mDocument.setMetaInformation(QTextDocument::DocumentTitle, title);
    block(title, Size, true, 0);
}

void PdfPages::block(const QString& text, int size, bool isBold, int above)
{
    mCursor.insertBlock(blockOf(above, Qt::AlignLeft), formatOf(size, isBold));
    mCursor.insertText(text);
}

void PdfPages::heading(const QString& text)
{
    flush();
    mHeading = text;
}

void PdfPages::flush()
{
    constexpr int Above = 18;
    if (!mHeading.isEmpty()) {
        block(std::exchange(mHeading, {}), HeadingSize, true, Above);
        mHeadings.push_back(mCursor.block().blockNumber());
    }
}

void PdfPages::subheading(const QString& text)
{
    constexpr int Size = 12;
    constexpr int Above = 10;
    flush();
    block(text, Size, true, Above);
}

void PdfPages::line(const std::vector<ReportText>& pieces)
{
    constexpr int Above = 4;
    flush();
    block({}, TextSize, false, Above);
    for (const ReportText& piece : pieces) {
        QTextCharFormat format = formatOf(TextSize, false);
        if (isPlainCell(piece.ground)) {
            mCursor.insertText(piece.text + "   ", format);
            continue;
        }
        format.setBackground(piece.ground);
        mCursor.insertText(" " + piece.text + " ", format);
        mCursor.insertText("   ", formatOf(TextSize, false));
    }
}

void PdfPages::table(const ReportTable& table)
{
    if (table.rows.empty()) {
        return;
    }
    flush();
    const bool hasTitles = !table.titles.isEmpty();
    const auto columns = static_cast<int>(table.rows.front().size());
    QTextTableFormat format;
    format.setBorder(0.5);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(QColor(0xBB, 0xBB, 0xBB));
    format.setCellPadding(3.0);
    format.setTopMargin(6.0);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100.0));
    format.setHeaderRowCount(hasTitles ? 1 : 0);
    QList<QTextLength> widths;
    for (const double share : table.shares) {
        widths += QTextLength(QTextLength::PercentageLength, share);
    }
    format.setColumnWidthConstraints(widths);
    block({}, 1, false, 0);
    QTextTable* made = mCursor.insertTable(
        static_cast<int>(table.rows.size()) + (hasTitles ? 1 : 0), columns, format);
    const auto ground = [](QTextTableCell cell, const QColor& color) {
        QTextTableCellFormat frame = cell.format().toTableCellFormat();
        frame.setBorder(0.5);
        frame.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        frame.setBorderBrush(QColor(0xBB, 0xBB, 0xBB));
        if (!isPlainCell(color)) {
            frame.setBackground(color);
        }
        cell.setFormat(frame);
    };
    for (int column = 0; column < table.titles.size(); ++column) {
        const QTextTableCell cell = made->cellAt(0, column);
        ground(cell, TimeCellColor);
        QTextCursor inside = cell.firstCursorPosition();
        inside.setBlockFormat(blockOf(0, table.isNumber(column) ? Qt::AlignRight : Qt::AlignLeft));
        inside.insertText(table.titles[column], formatOf(CellSize - 1, true));
    }
    int row = hasTitles ? 1 : 0;
    for (const std::vector<ReportText>& texts : table.rows) {
        for (int column = 0; column < columns; ++column) {
            const ReportText& text = texts[static_cast<std::size_t>(column)];
            const QTextTableCell cell = made->cellAt(row, column);
            ground(cell, text.ground);
            QTextCursor inside = cell.firstCursorPosition();
            inside.setBlockFormat(blockOf(0, text.number ? Qt::AlignRight : Qt::AlignLeft));
            QTextCharFormat ink = formatOf(CellSize, false);
            if (!isPlainCell(text.ground)) {
                ink.setForeground(foregroundOn(text.ground).value<QBrush>());
            }
            inside.insertText(text.text, ink);
        }
        ++row;
    }
    mCursor.movePosition(QTextCursor::End);
}

void PdfPages::figure(const QString& words, const std::vector<ReportFigure>& parts)
{
    constexpr int Line = 20; // pixels
    PdfFigures::Figure figure;
    QPainter painter(&figure.picture);
    double y = 0.0;
    const auto put = [&](const QString& text, int size) {
        const QFont font = formatOf(size, true).font();
        y += size + 9.0;
        painter.setFont(font);
        painter.drawText(QPointF(0.0, y - 6.0),
                         QFontMetricsF(font).elidedText(text, Qt::ElideRight, Width));
    };
    if (!mHeading.isEmpty()) {
        put(std::exchange(mHeading, {}), HeadingSize);
    }
    put(words, TextSize);
    for (const ReportFigure& part : parts) {
        painter.save();
        painter.translate(0.0, y);
        part.paint(painter);
        painter.restore();
        y += part.size.height();
    }
    painter.end();
    figure.size = {double(Width), y};
    QTextCharFormat format = formatOf(TextSize, false);
    mFigures->add(std::move(figure), format);
    block({}, TextSize, false, Line);
    mCursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

/// A heading at the foot of a page goes to the next one, with what it stands over.
void PdfPages::keepHeadings()
{
    constexpr double LeastBelow = 110.0; // pixels, for the first lines of a table
    const double page = mDocument.pageSize().height();
    for (const int number : mHeadings) {
        const QTextBlock heading = mDocument.findBlockByNumber(number);
        const double bottom = mDocument.documentLayout()->blockBoundingRect(heading).bottom();
        if (std::fmod(bottom, page) + LeastBelow > page) {
            QTextCursor cursor(heading);
            QTextBlockFormat format = cursor.blockFormat();
            format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            cursor.setBlockFormat(format);
        }
    }
}

QByteArray PdfPages::toPdf()
{
    flush();
    mCursor.endEditBlock();
    constexpr int Resolution = 1200;
    constexpr double Scale = Resolution / 96.0;
    QBuffer out;
    out.open(QIODevice::WriteOnly);
    QPdfWriter writer(&out);
    writer.setResolution(Resolution);
    writer.setPageSize(
        QPageSize(mPaper == ReportOptions::Letter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageMargins({0.0, 0.0, 0.0, 0.0});
    writer.setTitle(mDocument.metaInformation(QTextDocument::DocumentTitle));
    writer.setCreator(QString::fromStdString(Revision::getRevisionString()));
    const QSizeF page(writer.width() / Scale, writer.height() / Scale);
    const QSizeF body(page.width() - 2 * PageMargin, page.height() - 2 * PageMargin - Foot);
    mDocument.setPageSize(body);
    keepHeadings();
    QPainter painter(&writer);
    painter.scale(Scale, Scale);
    const int pages = mDocument.pageCount();
    for (int number = 0; number < pages; ++number) {
        if (number > 0) {
            writer.newPage();
        }
        painter.save();
        painter.setClipRect(QRectF({PageMargin, PageMargin}, body));
        painter.translate(PageMargin, PageMargin - number * body.height());
        mDocument.drawContents(&painter,
                               {0.0, number * body.height(), body.width(), body.height()});
        painter.restore();
        painter.setFont(formatOf(TextSize, false).font());
        painter.setPen(Qt::darkGray);
        const QRectF foot(PageMargin, PageMargin + body.height(), body.width(), Foot);
        painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom,
                         QString("%1 / %2").arg(number + 1).arg(pages));
        painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom,
                         painter.fontMetrics().elidedText(writer.title(), Qt::ElideRight,
                                                          static_cast<int>(body.width()) - 100));
    }
    painter.end();
    return out.data();
}

} // namespace TARN
