#pragma once

#include <QtWidgets/QLabel>

namespace TARN {

/// Stands in the middle of a view that has nothing to show and says why, and what to do. Its
/// text may hold links; what is dropped on it goes to the window.
class EmptyPlace : public QLabel
{
    Q_OBJECT

public:
    explicit EmptyPlace(QWidget* view);

    /// Plain text but for its links; lines end at line feeds.
    void setText(const QString& text);
    QString text() const { return mText; }
    void setTextColor(const QColor& color);

private:
    void layText();

    QString mText;
};

} // namespace TARN
