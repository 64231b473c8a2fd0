#include "widgets/SeenFirst.h"

#include "base/PendingWork.h"

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

#include <utility>

namespace TARN {

SeenFirst::SeenFirst(QWidget& view) : mView(view)
{
    constexpr int Later = 150; // ms; what is seen is mostly complete by then
    mTimer.setSingleShot(true);
    mTimer.setInterval(Later);
    connect(&mTimer, &QTimer::timeout, this, &SeenFirst::begin);
    view.installEventFilter(this);
}

SeenFirst::~SeenFirst()
{
    cancel();
}

void SeenFirst::run(std::function<void()> work)
{
    cancel();
    mWork = std::move(work);
    countPendingWork(1);
    if (mView.isVisible()) {
        begin();
    } else {
        mTimer.start();
    }
}

void SeenFirst::cancel()
{
    if (mWork != nullptr) {
        mTimer.stop();
        mWork = nullptr;
        countPendingWork(-1);
    }
}

void SeenFirst::begin()
{
    const auto work = std::exchange(mWork, nullptr);
    if (work != nullptr) {
        mTimer.stop();
        work(); // counts its job before this is counted no more
        countPendingWork(-1);
    }
}

bool SeenFirst::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        begin();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace TARN
