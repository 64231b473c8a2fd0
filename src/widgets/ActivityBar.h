#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace TARN {

/// One long piece of work in the status bar: what it is, how far it is, how long it will take,
/// and a button that stops it. Hidden while there is none.
class ActivityBar : public QWidget
{
    Q_OBJECT

public:
    /// \p cancelTip of the button.
    explicit ActivityBar(const QString& cancelTip, QWidget* parent = nullptr);

    /// \p amount of what is worked on, for the rate; 0 shows none. \p unit of it, "%1 samples/s".
    void begin(const QString& text, double amount = 0.0, const QString& unit = {});
    void setProgress(int percent, const QString& task);
    /// Shows that it is done for a second more.
    void finish();
    /// Hides it at once.
    void abandon();

    bool isActive() const { return mIsActive; }

Q_SIGNALS:
    /// The user wants it to stop.
    void cancelled();

private:
    void showText(const QString& text, const QString& remark = {});
    QString remark(int percent) const;

    bool mIsActive = false;
    QString mText;
    QString mUnit;
    double mAmount = 0.0;
    QElapsedTimer mClock;
    QElapsedTimer mSincePaint;
    QTimer mHideTimer;
    QLabel* mLabel;
    QProgressBar* mProgress;
    QToolButton* mCancel;
};

} // namespace TARN
