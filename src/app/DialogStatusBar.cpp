#include "app/DialogStatusBar.h"

#include "base/Revision.h"
#include "widgets/ActivityBar.h"
#include "widgets/ElidedLabel.h"

namespace TARN {

DialogStatusBar::DialogStatusBar(QWidget* parent)
    : QStatusBar(parent), mMessage(new ElidedLabel),
      mLoading(new ActivityBar(tr("Stop loading (Escape)"))),
      mComparing(new ActivityBar(tr("Stop loading the reference (Escape)"))),
      mExporting(new ActivityBar(tr("Stop the export")))
{
    mMessage->setObjectName("message");
    mLoading->setObjectName("loading");
    mComparing->setObjectName("comparing");
    mExporting->setObjectName("exporting");
    addWidget(mMessage, 1);
    addPermanentWidget(mExporting);
    addPermanentWidget(mComparing);
    addPermanentWidget(mLoading);
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
}

void DialogStatusBar::say(const QString& text)
{
    mText = text;
    mMessage->setFullText(text);
}

void DialogStatusBar::showTip(const QString& tip)
{
    mMessage->setFullText(tip.isEmpty() ? mText : tip);
}

} // namespace TARN
