#pragma once

#include <QtWidgets/QWidget>

namespace TARN {

/// A line of text that changes often, cut at its end where there is no room for it. Other than a
/// label it has no window laid out and painted anew for a changed text.
class TextLine : public QWidget
{
    Q_OBJECT

public:
    explicit TextLine(QWidget* parent = nullptr);

    void setText(const QString& text);
    const QString& text() const { return mText; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString mText;
};

} // namespace TARN
