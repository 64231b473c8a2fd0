#pragma once

#include <QtGui/QPicture>
#include <QtGui/QTextObjectInterface>

#include <vector>

namespace TARN {

/// Draws what was painted before in the place of a character of a document; shapes stay shapes.
class PdfFigures : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// Of the characters that are figures.
    static constexpr int Type = QTextFormat::UserObject + 1;

    struct Figure
    {
        QPicture picture;
        QSizeF size; ///< pixels of the document
    };

    using QObject::QObject;

    /// Makes a character of this format the figure's place.
    void add(Figure figure, QTextCharFormat& format);

    QSizeF intrinsicSize(QTextDocument* document, int place, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int place,
                    const QTextFormat& format) override;

private:
    Figure& figureOf(const QTextFormat& format);

    std::vector<Figure> mFigures;
};

} // namespace TARN
