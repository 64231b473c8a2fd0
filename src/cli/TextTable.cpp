#include "cli/TextTable.h"

#include <algorithm>
#include <ostream>

namespace TARN {

namespace {

QString padded(const QString& text, qsizetype width)
{
    bool isNumber = false;
    text.toDouble(&isNumber);
    return isNumber || text == "-" ? text.rightJustified(width) : text.leftJustified(width);
}

} // namespace

QString onOneLine(const QString& text)
{
    QString line = text;
    std::ranges::replace_if(
        line, [](QChar c) { return !c.isPrint() && !c.isSurrogate(); }, QChar(' '));
    return line;
}

void printTable(const QList<QStringList>& rows, std::ostream& out)
{
    QList<qsizetype> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype k = 0; k < row.size(); ++k) {
            widths[k] = std::max(widths[k], row[k].size());
        }
    }
    for (const QStringList& row : rows) {
        QString line;
        for (qsizetype k = 0; k < row.size(); ++k) {
            line += padded(onOneLine(row[k]), widths[k]) + "  ";
        }
        while (line.endsWith(' ')) {
            line.chop(1);
        }
        out << line.toStdString() << '\n';
    }
}

} // namespace TARN
