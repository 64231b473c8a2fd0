#include "app/DialogSplash.h"

#include <QtCore/QEvent>
#include <QtGui/QIcon>
#include <QtGui/QPainter>

namespace TARN {

namespace {

constexpr int Width = 536;
constexpr int Height = 403;
constexpr int MostEntries = 15;

} // namespace

DialogSplash* DialogSplash::instance()
{
    static auto* splash = new DialogSplash; // outlives the application like every window of it
    return splash;
}

DialogSplash::DialogSplash() : QSplashScreen(QPixmap(), Qt::WindowStaysOnTopHint)
{
    setPixmap(QIcon(":/splash/splash.svg").pixmap(QSize(Width, Height), devicePixelRatio()));
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &DialogSplash::slotTimeout);
    show();
}

void DialogSplash::addEntry(const QString& text)
{
    mEntries.append(text);
    if (mEntries.size() > MostEntries) {
        mEntries.removeFirst();
    }
    repaint();
}

void DialogSplash::finish()
{
    constexpr int CloseDelay = 3000; // ms
    mTimer.start(CloseDelay);
}

void DialogSplash::slotTimeout()
{
    close();
}

bool DialogSplash::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked) { // it would hide a question, and not take clicks
        close();
    }
    return QSplashScreen::event(event);
}

void DialogSplash::mousePressEvent(QMouseEvent*)
{
    close();
}

void DialogSplash::paintEvent(QPaintEvent*)
{
    constexpr int Left = 5;
    constexpr int FirstLine = 30;
    constexpr int LineHeight = 15;
    QPainter painter(this);
    painter.drawPixmap(0, 0, pixmap());
    painter.setPen(QColor(0, 0, 200));
    int y = FirstLine;
    for (const QString& entry : mEntries) {
        painter.drawText(Left, y, entry);
        y += LineHeight;
    }
}

} // namespace TARN
