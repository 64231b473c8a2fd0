#pragma once

#include <QtWidgets/QWidget>

/// One bit of an error matrix: a cell in the colour of its type and state with its name upright.
class WidgetErrorItem : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetErrorItem(QWidget* parent = nullptr);

    /// 0 no error on this bit, 1 Info, 2 Warning, 3 Fault.
    void setType(int type);
    void setErrorState(bool state);
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString mText;
    bool mErrorState = true;
    int mType = 0;
};
