#include "display/WidgetGraph.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QOffscreenSurface>
#include <QtGui/QOpenGLContext>
#include <QtGui/QPainter>
#include <QtOpenGL/QOpenGLPaintDevice>

namespace {

QFont graphFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(13);
    return font;
}

/// The oldest kind of context; it has all that is drawn with.
QSurfaceFormat graphFormat()
{
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(2, 1);
    format.setProfile(QSurfaceFormat::NoProfile);
    return format;
}

} // namespace

using namespace TARN;

WidgetGraph::WidgetGraph(QWidget* parent)
    : QOpenGLWidget(parent), mTexts(QFontMetricsF(graphFont()))
{
    constexpr int RepaintInterval = 30; // ms
    constexpr int RecalcDelay = 50;
    constexpr int CursorDelay = 5000;
    setFormat(graphFormat());
    setFont(graphFont());
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Graph of the selected parameters"));
    setMinimumSize(200, 120);
    connect(&mRepaintTimer, &QTimer::timeout, this, &WidgetGraph::slotTimeout);
    mRepaintTimer.start(RepaintInterval);
    mRecalcTimer.setSingleShot(true);
    mRecalcTimer.setInterval(RecalcDelay);
    connect(&mRecalcTimer, &QTimer::timeout, this, &WidgetGraph::slotTimeoutRecalc);
    mCursorTimer.setSingleShot(true);
    mCursorTimer.setInterval(CursorDelay);
    connect(&mCursorTimer, &QTimer::timeout, this, &WidgetGraph::slotTimeoutCursor);
    mSinceRedraw.start();
}

bool WidgetGraph::canDraw()
{
    QOpenGLContext context;
    context.setFormat(graphFormat());
    QOffscreenSurface surface;
    surface.setFormat(graphFormat());
    if (!context.create() || context.isOpenGLES()) {
        return false;
    }
    surface.create();
    const bool current = context.makeCurrent(&surface);
    const bool drawable = current && context.format().profile() != QSurfaceFormat::CoreProfile;
    if (current) {
        context.doneCurrent();
    }
    return drawable;
}

void WidgetGraph::resizeGL(int width, int height)
{
    mModel.setSize(width, height);
    update();
}

void WidgetGraph::paintGL()
{
    constexpr int MaxSettling = 5; // scales that chase each other are left alone
    mTexts.clear();
    mWidestLabel = 0.0;
    mModel.calcFrame();
    mModel.layoutStrips();
    mCanvas.begin(size(), devicePixelRatioF(), mLabelBackColor);
    drawGraph();
    mCanvas.end();
    // On the frame buffer, not on this widget: while a window is grabbed, painters on its widgets
    // are led elsewhere.
    QOpenGLPaintDevice device(size() * devicePixelRatioF());
    device.setDevicePixelRatio(devicePixelRatioF());
    QPainter painter(&device);
    paintTexts(painter);
    painter.end();
    mModel.finishPaint(mWidestLabel);
    if (mModel.isSettled() || mSettling >= MaxSettling) {
        mSettling = 0;
    } else {
        ++mSettling;
        update(); // at the scale that this paint has found
    }
}

void WidgetGraph::showEvent(QShowEvent* event)
{
    QOpenGLWidget::showEvent(event);
    mRecalcTimer.start();
}

void WidgetGraph::slotTimeout()
{
    constexpr double Pixels = 0.7; // that the window moves between two redraws at least
    const double seconds = Pixels * mModel.view().pixelTime();
    const qint64 elapsed = mSinceRedraw.elapsed();
    // Without new samples there is nothing to redraw, and a processor to be spared.
    if (isVisible() && mModel.timeChanged() && static_cast<double>(elapsed) > seconds * 1000.0) {
        mSinceRedraw.restart();
        update();
    }
}

void WidgetGraph::slotTimeoutRecalc()
{
    recalcFrameBuffer();
}

void WidgetGraph::slotTimeoutCursor()
{
    mKeyCursorShown = false;
    update();
}

void WidgetGraph::setEmptyText(const QString& text)
{
    mEmptyText = text;
    update();
}
