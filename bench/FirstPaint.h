#pragma once

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdlib>

namespace TARN::Bench {

/// Ends the process once everything in the window has been painted and the display has got it.
class EndAfterFirstPaint : public QObject
{
public:
    explicit EndAfterFirstPaint(QWidget& window) : mWindow(window)
    {
        window.installEventFilter(this);
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == &mWindow && event->type() == QEvent::Paint) {
            // The window is the first to paint; the rest follows before the event loop goes on.
            QTimer::singleShot(0, [] {
                QGuiApplication::sync();
                std::_Exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

    QWidget& mWindow;
};

} // namespace TARN::Bench
