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

    /// Shows a message until the next one.
    void say(const QString& text);
    const QString& said() const { return mText; }

    /// Shows what a command does while the mouse is over it; an empty tip brings the message back,
    /// which may be the one that something is missing.
    void showTip(const QString& tip);

    /// Shows the bar below 100 percent; at 100 it stays a second longer.
    void updateProgress(int percent);

private Q_SLOTS:
    void slotTimeout();

private:
    QString mText;
    QProgressBar* mProgress;
    QTimer mHideTimer;
};

} // namespace TARN
