#pragma once

#include "export/ExportOptions.h"

#include <QtCore/QTime>
#include <QtWidgets/QGroupBox>

class QTimeEdit;

namespace TARN {

/// Edits the start and stop of an export in place, as times on the recording's clock. A time
/// that the user leaves alone keeps its full precision.
class WidgetTimeRange : public QGroupBox
{
    Q_OBJECT

public:
    /// The options' three times are edited; the current one is what the "Cursor Pos" buttons take
    /// over. They live as long as the widget.
    explicit WidgetTimeRange(ExportOptions& options, QWidget* parent = nullptr);

    /// Shows the times as they are now. Times typed are then on the day on which they lie in this
    /// range.
    void showTimes();

    /// False, and says so, when the start is after the stop.
    bool check();

private Q_SLOTS:
    void slotStartTime(QTime time);
    void slotStopTime(QTime time);
    void slotCursorStart();
    void slotCursorStop();

private:
    QTimeEdit* createEditor(const QString& name);
    void updateEditors();
    double typed(QTime time, double now) const;

    ExportOptions& mOptions;
    TimeRange mWhole;       ///< that was shown first
    bool mUpdating = false; ///< the editors' values are not the user's
    QTimeEdit* mStartEdit;
    QTimeEdit* mStopEdit;
};

} // namespace TARN
