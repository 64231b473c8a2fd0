#include "app/DialogStatusBar.h"

#include "base/Revision.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

namespace TARN {

DialogStatusBar::DialogStatusBar(QWidget* parent) : QStatusBar(parent), mProgress(new QProgressBar)
{
    constexpr int ProgressWidth = 160;
    mProgress->setMaximumWidth(ProgressWidth);
    mProgress->setAccessibleName(tr("Progress"));
    mProgress->hide();
    addPermanentWidget(mProgress);
    auto* label = new QLabel(QString("Brask Flight Systems    %1 %2 (%3)")
                                 .arg(QString::fromStdString(Revision::getName()),
                                      QString::fromStdString(Revision::getRevisionNumber()))
                                 .arg(Revision::year));
    QFont font = label->font();
    font.setPixelSize(12);
    label->setFont(font);
    label->setFrameStyle(QFrame::NoFrame);
    label->setAlignment(Qt::AlignCenter);
    label->setMinimumWidth(60);
    addPermanentWidget(label);
    mHideTimer.setSingleShot(true);
    connect(&mHideTimer, &QTimer::timeout, this, &DialogStatusBar::slotTimeout);
}

void DialogStatusBar::say(const QString& text)
{
    mText = text;
    showMessage(text);
}

void DialogStatusBar::showTip(const QString& tip)
{
    showMessage(tip.isEmpty() ? mText : tip);
}

void DialogStatusBar::updateProgress(int percent)
{
    constexpr int HideDelay = 1000; // ms
    mProgress->setValue(percent);
    if (percent < 100) {
        mProgress->show();
    } else {
        mHideTimer.start(HideDelay);
    }
}

void DialogStatusBar::slotTimeout()
{
    mProgress->hide();
}

} // namespace TARN
