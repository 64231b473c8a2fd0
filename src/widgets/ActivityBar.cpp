#include "widgets/ActivityBar.h"

#include "base/CountText.h"
#include "base/PlainTip.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QToolButton>

namespace TARN {

ActivityBar::ActivityBar(const QString& cancelTip, QWidget* parent)
    : QWidget(parent), mLabel(new QLabel), mProgress(new QProgressBar), mCancel(new QToolButton)
{
    constexpr int ProgressWidth = 160;
    mLabel->setTextFormat(Qt::PlainText);
    mProgress->setMaximumWidth(ProgressWidth);
    mProgress->setAccessibleName(tr("Progress"));
    mCancel->setText(tr("Cancel"));
    mCancel->setToolTip(cancelTip);
    mCancel->setAccessibleName(cancelTip);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mLabel);
    layout->addWidget(mProgress);
    layout->addWidget(mCancel);
    mHideTimer.setSingleShot(true);
    connect(&mHideTimer, &QTimer::timeout, this, &QWidget::hide);
    connect(mCancel, &QToolButton::clicked, this, &ActivityBar::cancelled);
    hide();
}

void ActivityBar::begin(const QString& text, double amount, const QString& unit)
{
    mIsActive = true;
    mText = text;
    mAmount = amount;
    mUnit = unit;
    mClock.start();
    mSincePaint.start();
    mHideTimer.stop();
    showText(text);
    mProgress->setValue(0);
    mCancel->show();
    show();
}

void ActivityBar::setProgress(int percent, const QString& task)
{
    constexpr qint64 PaintInterval =
        100; // ms; each paint of the window takes from what it tells of
    if (mSincePaint.elapsed() < PaintInterval) {
        return;
    }
    mSincePaint.start();
    mProgress->setValue(percent);
    showText(task.isEmpty() ? mText : task, remark(percent));
}

/// A long file name must not widen the window.
void ActivityBar::showText(const QString& text, const QString& remark)
{
    constexpr int Widest = 220; // pixels
    const QString shown = fontMetrics().elidedText(text, Qt::ElideMiddle, Widest);
    mLabel->setText(shown + remark);
    mLabel->setToolTip(shown == text ? QString() : plainTip(text));
}

/// How fast it is, and how long it will take once that can be told.
QString ActivityBar::remark(int percent) const
{
    constexpr double TellsAfter = 2.0; // seconds
    const double elapsed = static_cast<double>(mClock.elapsed()) / 1000.0;
    if (elapsed < TellsAfter || percent < 1) {
        return {};
    }
    QString text;
    if (mAmount > 0.0) {
        const double rate = mAmount * percent / 100.0 / elapsed;
        text += ", " + mUnit.arg(countText(static_cast<qint64>(rate)));
    }
    const double left = elapsed * (100 - percent) / percent;
    return text + tr(", %1 s left").arg(left, 0, 'f', 0);
}

void ActivityBar::finish()
{
    constexpr int HideDelay = 1000; // ms
    mIsActive = false;
    mLabel->clear();
    mCancel->hide();
    mProgress->setValue(100);
    mHideTimer.start(HideDelay);
}

void ActivityBar::abandon()
{
    mIsActive = false;
    mHideTimer.stop();
    hide();
}

} // namespace TARN
