#pragma once

#include <QtWidgets/QTimeEdit>

namespace TARN {

/// Edits a time of day. Where the field has gone on to the next part by itself, a separator typed
/// there is not a second step; where all of it is selected, typing begins with the first part.
class ClockEdit : public QTimeEdit
{
    Q_OBJECT

public:
    explicit ClockEdit(const QString& format, QWidget* parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace TARN
