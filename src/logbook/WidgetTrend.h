#pragma once

#include "logbook/LogbookAccess.h"
#include "logbook/TrendLayout.h"

#include <QtWidgets/QWidget>

namespace TARN {

/// A figure of a parameter over the flights of an engine. Left and Right go from flight to flight;
/// a click or Enter opens one, with Shift as the reference.
class WidgetTrend : public QWidget
{
    Q_OBJECT

public:
    explicit WidgetTrend(QWidget* parent = nullptr);

    void setTrend(const ParameterTrend& trend, const std::vector<MaintenanceMark>& notes);
    /// Puts a ring around a flight, by its key.
    void choose(const QString& flight);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

Q_SIGNALS:
    void flightChosen(const QString& flight);
    void flightWanted(const QString& flight, bool asReference);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    TrendLayout layoutNow() const;
    QString tipOf(const TrendPoint& point) const;
    void chooseAt(std::ptrdiff_t point);

    ParameterTrend mTrend;
    std::vector<MaintenanceMark> mNotes;
    QString mChosen; ///< key of a flight
};

} // namespace TARN
