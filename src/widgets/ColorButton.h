#pragma once

#include <QtWidgets/QPushButton>

namespace TARN {

/// A button that shows a colour and lets the user choose another in the colour dialog.
class ColorButton : public QPushButton
{
    Q_OBJECT

public:
    /// \p title of the colour dialog.
    explicit ColorButton(const QString& title, QWidget* parent = nullptr);

    /// Six hexadecimal digits: red, green, blue.
    void setColor(const std::string& digits);

Q_SIGNALS:
    /// The user chose a colour.
    void signalColor(const QString& digits);

protected:
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS:
    void slotClicked();

private:
    QString mTitle;
    QColor mColor;
};

} // namespace TARN
