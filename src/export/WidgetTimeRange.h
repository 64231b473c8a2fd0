#pragma once

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
    /// The three times in seconds; \p cursor is what the "Cursor Pos" buttons take over. All
    /// must live as long as the widget.
    WidgetTimeRange(double& start, double& stop, const double& cursor, QWidget* parent = nullptr);

    /// Shows the times as they are now.
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

    double& mStart;
    double& mStop;
    const double& mCursor;
    bool mUpdating = false; ///< the editors' values are not the user's
    QTimeEdit* mStartEdit;
    QTimeEdit* mStopEdit;
};

} // namespace TARN
