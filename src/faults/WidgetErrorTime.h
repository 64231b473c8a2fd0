#pragma once

#include "faults/FaultHistory.h"
#include "record/Record.h"

#include <QtWidgets/QWidget>

namespace TARN {

/// The timeline of an error matrix: three bands, from the top Info, Warning and Fault, that show
/// when any error of the type was active, and a cursor at the current time. A click or drag
/// picks a time.
class WidgetErrorTime : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetErrorTime(QWidget* parent = nullptr);

    /// Both are not owned and must live until the next call; null for none.
    void setHistory(const Record* record, const FaultHistory* history);
    void setTime(double time);

Q_SIGNALS:
    /// The user picked this time, seconds.
    void signalTime(double time);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    int getX(float time) const;
    void paintBands(QPainter& painter, int band) const;
    void pick(int x);

    const Record* mRecord = nullptr;
    const FaultHistory* mHistory = nullptr;
    double mTime = 0.0;
};

} // namespace TARN
