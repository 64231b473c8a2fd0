#pragma once

#include <QtWidgets/QLabel>

namespace TARN {

/// A line of text that is cut in the middle where there is no room for it; the tool tip has all
/// of it then.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void setFullText(const QString& text);
    const QString& fullText() const { return mText; }

    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void elide();

    QString mText;
};

} // namespace TARN
