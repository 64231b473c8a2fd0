#pragma once

#include "flight/Flight.h"

#include <QtWidgets/QWidget>

namespace TARN {

/// The timeline of an error matrix: three bands, from the top Info, Warning and Fault, that show
/// when any error of the type was active, and a cursor at the current time. A click or drag
/// picks a time; near a change it picks the change.
class WidgetErrorTime : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetErrorTime(QWidget* parent = nullptr);

    /// Number \p matrix of a flight's; null shows none.
    void setFlight(std::shared_ptr<const Flight> flight, std::size_t matrix);
    void setTime(double time);

Q_SIGNALS:
    /// The user picked this time, seconds.
    void signalTime(double time);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    const FaultHistory& history() const { return mFlight->faults()[mMatrix]; }
    int getX(float time) const;
    void paintBand(QPainter& painter, int type, int top, int height) const;
    double timeAt(int x) const;

    std::shared_ptr<const Flight> mFlight;
    std::size_t mMatrix = 0;
    double mTime = 0.0;
};

} // namespace TARN
