#pragma once

#include <QtWidgets/QStatusBar>

namespace TARN {

class ActivityBar;
class ElidedLabel;

/// The status bar with what was last said, the progress of long work and the program's label.
class DialogStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit DialogStatusBar(QWidget* parent = nullptr);

    /// Shows a message until the next one.
    void say(const QString& text);
    /// The same behind what was said last.
    void sayAlso(const QString& text) { say((mText + " " + text).trimmed()); }
    const QString& said() const { return mText; }

    /// Shows what a command does while the mouse is over it; an empty tip brings the message back,
    /// which may be the one that something is missing.
    void showTip(const QString& tip);

    ActivityBar& loading() { return *mLoading; }
    ActivityBar& comparing() { return *mComparing; } ///< a reference loads
    ActivityBar& exporting() { return *mExporting; }

private:
    QString mText;
    ElidedLabel* mMessage;
    ActivityBar* mLoading;
    ActivityBar* mComparing;
    ActivityBar* mExporting;
};

} // namespace TARN
