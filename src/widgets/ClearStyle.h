#pragma once

#include <QtWidgets/QProxyStyle>

namespace TARN {

/// The toolkit's Fusion style, made legible where it is not: on dark themes an empty check box
/// has an outline that can be seen, and the icon of a selected item has the colour of its text.
class ClearStyle : public QProxyStyle
{
public:
    ClearStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                const QStyleOption* option) const override;
};

} // namespace TARN
