#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QStatusBar>

class QProgressBar;

namespace TARN {

/// The status bar with the progress of long work and the program's label.
class DialogStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit DialogStatusBar(QWidget* parent = nullptr);

    /// Shows the bar below 100 percent; at 100 it stays a second longer.
    void updateProgress(int percent);

private Q_SLOTS:
    void slotTimeout();

private:
    QProgressBar* mProgress;
    QTimer mHideTimer;
};

} // namespace TARN
