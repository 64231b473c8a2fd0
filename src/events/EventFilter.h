#pragma once

#include <QtWidgets/QWidget>

class QComboBox;
class QLineEdit;

namespace TARN {

class EventOrder;

/// The line over a list of events in which the user says which rows they want to see: those that
/// hold a text, those of a severity.
class EventFilter : public QWidget
{
    Q_OBJECT

public:
    explicit EventFilter(EventOrder& order);

    /// Takes its place in the tab order behind the list: letters typed there are keys.
    void follow(QWidget& list);

    /// Puts the cursor into the text.
    void begin();

Q_SIGNALS:
    /// The user goes on to the list.
    void left();

protected:
    /// Escape takes the filter back, before it means anything to the window.
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool isActive() const;
    void takeBack();
    void apply();

    EventOrder& mOrder;
    QLineEdit* mText;
    QComboBox* mSeverity;
};

} // namespace TARN
