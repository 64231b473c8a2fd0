#include "events/EventFilter.h"

#include "events/EventOrder.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>

namespace TARN {

EventFilter::EventFilter(EventOrder& order)
    : mOrder(order), mText(new QLineEdit), mSeverity(new QComboBox)
{
    mText->setPlaceholderText(tr("Filter (Ctrl+F)"));
    mText->setToolTip(tr("Show only lines that hold this text"));
    mText->setAccessibleName(tr("Filter text"));
    mSeverity->setToolTip(tr("Show only lines of this severity"));
    mSeverity->setAccessibleName(tr("Filter severity"));
    mSeverity->addItem(tr("Every severity"));
    const auto* list = static_cast<const EventModel*>(order.sourceModel());
    const QStringList words = severityWords(list->kind());
    for (int state = static_cast<int>(words.size()) - 1; state >= 0; --state) {
        if (!words[state].isEmpty()) {
            mSeverity->addItem(words[state], state);
        }
    }
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 0);
    layout->addWidget(mText, 1);
    layout->addWidget(mSeverity);
    connect(mText, &QLineEdit::textChanged, this, &EventFilter::apply);
    connect(mText, &QLineEdit::returnPressed, this, &EventFilter::left);
    connect(mSeverity, &QComboBox::currentIndexChanged, this, &EventFilter::apply);
}

void EventFilter::follow(QWidget& list)
{
    setTabOrder(&list, mText);
    setTabOrder(mText, mSeverity);
}

void EventFilter::begin()
{
    mText->setFocus(Qt::ShortcutFocusReason);
    mText->selectAll();
}

/// The button is looked for in the desktop's theme, which takes a while for what nobody sees.
void EventFilter::showEvent(QShowEvent* event)
{
    mText->setClearButtonEnabled(true);
    QWidget::showEvent(event);
}

bool EventFilter::isActive() const
{
    return !mText->text().isEmpty() || mSeverity->currentIndex() > 0;
}

void EventFilter::takeBack()
{
    mText->clear();
    mSeverity->setCurrentIndex(0);
    Q_EMIT left();
}

bool EventFilter::event(QEvent* event)
{
    const bool isKey =
        event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (!isKey || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape || !isActive()) {
        return QWidget::event(event);
    }
    if (event->type() == QEvent::KeyPress) {
        takeBack();
    }
    event->accept();
    return true;
}

void EventFilter::apply()
{
    const QVariant state = mSeverity->currentData();
    mOrder.setFilter(mText->text(), state.isValid() ? std::optional(state.toInt()) : std::nullopt);
}

} // namespace TARN
