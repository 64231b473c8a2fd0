#include "app/WindowState.h"

#include "app/DialogData.h"
#include "base/Property.h"

#include <QtGui/QScreen>
#include <QtWidgets/QSplitter>

namespace TARN {

namespace {

constexpr const char* GeometryKey = "MainGeometry";
constexpr const char* PanesKey = "MainPanes";
constexpr const char* ViewKey = "MainView";

QByteArray storedState(const char* key)
{
    return QByteArray::fromBase64(
        QByteArray::fromStdString(Property::instance()->getString(key, "")));
}

} // namespace

WindowState::WindowState(QWidget& window, QSplitter& panes, DialogData& views)
    : mWindow(window), mPanes(panes), mViews(views)
{}

void WindowState::save() const
{
    Property* settings = Property::instance();
    settings->setString(GeometryKey, mWindow.saveGeometry().toBase64().toStdString());
    settings->setString(PanesKey, mPanes.saveState().toBase64().toStdString());
    settings->setInt(ViewKey, mViews.currentView());
    settings->writeXmlFile();
}

void WindowState::restore()
{
    constexpr QSize First(1000, 800);
    constexpr QSize Frame(16, 48); // that a window manager puts around it
    const QSize free = mWindow.screen()->availableSize() - Frame;
    mWindow.resize(First.boundedTo(free));
    mWindow.restoreGeometry(storedState(GeometryKey));
    mWindow.resize(mWindow.size().boundedTo(free));
    mPanes.restoreState(storedState(PanesKey));
    mViews.setCurrentView(Property::instance()->getInt(ViewKey, 0));
}

} // namespace TARN
