#pragma once

#include "flight/Flight.h"

#include <QtWidgets/QFrame>

#include <array>

class QLabel;
class QTableWidget;
class WidgetErrorItem;

namespace TARN {

class WidgetErrorTime;

/// One error matrix: its name, its timeline, and a row of 32 cells, one for each bit, the most
/// significant on the left, with the state at the current time.
class WidgetFaultMatrix : public QFrame
{
    Q_OBJECT

public:
    explicit WidgetFaultMatrix(QWidget* parent = nullptr);

    void setData(const FaultMatrix& matrix);

    /// Shows number \p matrix of a flight's, which is the one given as data; null shows none.
    void setFlight(std::shared_ptr<const Flight> flight, std::size_t matrix);
    void setTime(double time);

Q_SIGNALS:
    /// The user picked this time in the timeline, seconds.
    void signalTime(double time);

protected:
    /// The cells fill their table, whenever its size changes.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createTable();

    std::shared_ptr<const Flight> mFlight;
    std::size_t mMatrix = 0;
    std::array<WidgetErrorItem*, FaultMatrix::Bits> mCells{};
    QLabel* mTitle;
    WidgetErrorTime* mTimeline;
    QTableWidget* mTable;
};

} // namespace TARN
