#pragma once

#include "faults/FaultHistory.h"
#include "record/Record.h"

#include <QtWidgets/QFrame>

#include <array>
#include <optional>

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

    /// Not owned; null when there is none. Referred to until the next call.
    void updateRecord(Record* record);
    void setTime(double time);

Q_SIGNALS:
    /// The user picked this time in the timeline, seconds.
    void signalTime(double time);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void createTable();

    FaultMatrix mMatrix;
    std::optional<FaultHistory> mHistory; ///< absent without a recording
    std::array<WidgetErrorItem*, 32> mCells{};
    QLabel* mTitle;
    WidgetErrorTime* mTimeline;
    QTableWidget* mTable;
};

} // namespace TARN
