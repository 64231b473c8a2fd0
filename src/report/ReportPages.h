#pragma once

#include "report/ReportOptions.h"

#include <QtCore/QSizeF>
#include <QtGui/QColor>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QPainter;

namespace TARN {

/// A piece of text, in a table or in a line.
struct ReportText
{
    QString text;
    QColor ground = {};                ///< invalid for the paper's
    std::optional<double> number = {}; ///< that it words; numbers stand on the right
};

struct ReportTable
{
    QStringList titles; ///< of the columns; empty for a list of fields, whose first cell is a label
    std::vector<double> shares;                ///< of the columns in the width of the page, percent
    std::vector<std::vector<ReportText>> rows; ///< as many cells each

    /// Whether a column stands on the right, as its first cell does.
    bool isNumber(qsizetype column) const
    {
        return !rows.empty() && rows.front()[static_cast<std::size_t>(column)].number;
    }
};

/// A picture that can be drawn on any paper.
struct ReportFigure
{
    QSizeF size; ///< pixels
    /// As SVG; pictures of one page have a number each.
    std::function<std::string(int number)> toSvg;
    /// From the painter's origin on.
    std::function<void(QPainter& painter)> paint;
};

/// What a report is written on, from top to bottom. Texts are plain: nothing in them means
/// anything to the paper.
class ReportPages
{
public:
    /// Pixels, 96 to the inch, between the margins.
    static constexpr int Width = 690;
    static constexpr int Height = 850; ///< of the graphs of a figure, together at most

    virtual ~ReportPages() = default;

    /// Once, before all else.
    virtual void begin(const QString& title, const QString& language) = 0;
    virtual void heading(const QString& text) = 0;
    /// Under the last heading.
    virtual void subheading(const QString& text) = 0;
    virtual void line(const std::vector<ReportText>& pieces) = 0;
    virtual void table(const ReportTable& table) = 0;
    /// On a page together with its words, one below the other.
    virtual void figure(const QString& words, const std::vector<ReportFigure>& parts) = 0;

    void say(const QString& text) { line({{text}}); }
};

} // namespace TARN
