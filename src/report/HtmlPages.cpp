#include "report/HtmlPages.h"

#include "base/CellColor.h"
#include "base/XmlText.h"

#include <array>
#include <charconv>

namespace TARN {

namespace {

constexpr const char* Style = R"(
body { font: 13px/1.35 "DejaVu Sans", Verdana, Arial, sans-serif; color: #111; background: #fff;
       max-width: 1000px; margin: 24px auto; padding: 0 16px; }
h1 { font-size: 22px; margin: 0 0 12px; overflow-wrap: anywhere; }
h2 { font-size: 17px; margin: 26px 0 8px; border-bottom: 1px solid #999; }
h3 { font-size: 14px; margin: 16px 0 6px; }
p { margin: 6px 0; }
.chip { padding: 1px 6px; margin-right: 4px; white-space: nowrap; }
table { border-collapse: collapse; table-layout: fixed; width: 100%; margin: 6px 0; }
th, td { border: 1px solid #bbb; padding: 2px 5px; text-align: left; vertical-align: top;
         overflow-wrap: anywhere; }
thead th { background: #e6e6e6; }
tbody th { font-weight: normal; background: #f4f4f4; }
.n { text-align: right; font-variant-numeric: tabular-nums; }
td.n { white-space: pre; }
td { white-space: pre-line; }
figure { margin: 12px 0; break-inside: avoid; }
figcaption { font-weight: bold; margin-bottom: 4px; overflow-wrap: anywhere; }
svg { width: 100%; height: auto; display: block; }
@media print {
  body { margin: 0; padding: 0; max-width: none; font-size: 9pt; }
  * { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
  tr, h2, h3, figcaption { break-inside: avoid; }
  h2, h3 { break-after: avoid; }
}
)";

/// A text in which nothing means anything to a browser.
std::string htmlText(const QString& text)
{
    return xmlEscaped(text, true).toStdString();
}

/// The shortest text that reads back as a number.
std::string exact(double number)
{
    std::array<char, 32> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

std::string groundOf(const QColor& ground)
{
    return isPlainCell(ground)
               ? std::string()
               : " style=\"background:" + ground.name().toStdString() +
                     ";color:" + foregroundOn(ground).value<QBrush>().color().name().toStdString() +
                     "\"";
}

} // namespace

void HtmlPages::begin(const QString& title, const QString& language)
{
    mFile.write("<!DOCTYPE html>\n<html lang=\"" + htmlText(language) +
                "\">\n<head>\n<meta charset=\"utf-8\"/>\n"
                "<meta name=\"viewport\" content=\"width=device-width\"/>\n");
    element("title", title);
    mFile.write("<style>\n@page { size: ");
    mFile.write(mPaper == ReportOptions::Letter ? "letter" : "A4");
    mFile.write("; margin: 14mm; }");
    mFile.write(Style);
    mFile.write("</style>\n</head>\n<body>\n");
    element("h1", title);
}

void HtmlPages::end()
{
    mFile.write("</body>\n</html>\n");
}

void HtmlPages::element(const char* name, const QString& text)
{
    mFile.write(std::string("<") + name + ">" + htmlText(text) + "</" + name + ">\n");
}

void HtmlPages::heading(const QString& text)
{
    element("h2", text);
}

void HtmlPages::subheading(const QString& text)
{
    element("h3", text);
}

void HtmlPages::line(const std::vector<ReportText>& pieces)
{
    mFile.write("<p>");
    for (const ReportText& piece : pieces) {
        const std::string ground = groundOf(piece.ground);
        mFile.write(ground.empty() ? htmlText(piece.text) + " "
                                   : "<span class=\"chip\"" + ground + ">" + htmlText(piece.text) +
                                         "</span> ");
    }
    mFile.write("</p>\n");
}

void HtmlPages::cells(const ReportTable& table, const std::vector<ReportText>& row)
{
    mFile.write("<tr>");
    for (const ReportText& cell : row) {
        if (table.titles.isEmpty() && &cell == &row.front()) {
            mFile.write("<th scope=\"row\">" + htmlText(cell.text) + "</th>");
            continue;
        }
        mFile.write(cell.number ? "<td class=\"n\" data-value=\"" + exact(*cell.number) + "\""
                                : std::string("<td"));
        mFile.write(groundOf(cell.ground) + ">" + htmlText(cell.text));
        mFile.write("</td>");
    }
    mFile.write("</tr>\n");
}

void HtmlPages::table(const ReportTable& table)
{
    mFile.write("<table>\n<colgroup>");
    for (const double share : table.shares) {
        mFile.write("<col style=\"width:" + exact(share) + "%\"/>");
    }
    mFile.write("</colgroup>\n");
    if (!table.titles.isEmpty()) {
        mFile.write("<thead><tr>");
        for (qsizetype column = 0; column < table.titles.size(); ++column) {
            mFile.write(table.isNumber(column) ? "<th scope=\"col\" class=\"n\">"
                                               : "<th scope=\"col\">");
            mFile.write(htmlText(table.titles[column]) + "</th>");
        }
        mFile.write("</tr></thead>\n");
    }
    mFile.write("<tbody>\n");
    for (const std::vector<ReportText>& row : table.rows) {
        cells(table, row);
    }
    mFile.write("</tbody></table>\n");
}

void HtmlPages::figure(const QString& words, const std::vector<ReportFigure>& parts)
{
    mFile.write("<figure>\n");
    element("figcaption", words);
    for (const ReportFigure& part : parts) {
        mFile.write(part.toSvg(mPictures++));
    }
    mFile.write("</figure>\n");
}

} // namespace TARN
