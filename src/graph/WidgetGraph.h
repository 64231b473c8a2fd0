#pragma once

#include "graph/GlCanvas.h"
#include "graph/GraphGestures.h"
#include "graph/GraphSpots.h"
#include "graph/LegendGestures.h"
#include "graph/LiveFeed.h"
#include "widgets/EmptyText.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtOpenGLWidgets/QOpenGLWidget>

/// An oscilloscope: curves over time, drawn with OpenGL, with a cursor, two markers and a legend.
/// Knows its curves by index; what is done to one that does not exist is ignored. Times are
/// seconds. What it shows is in its model, which is to be changed there; the operations below are
/// short forms for programs that feed it themselves.
class WidgetGraph : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit WidgetGraph(QWidget* parent = nullptr);

    TARN::GraphModel& model() { return mModel; }
    const TARN::GraphModel& model() const { return mModel; }
    const TARN::GraphStyle& graphStyle() const { return mStyle; }
    void setGraphStyle(const TARN::GraphStyle& style);

    /// Told in the middle of the plot while no active curve has a sample; may hold links.
    void setEmptyText(const QString& text);
    QString emptyText() const; ///< while it is told

    /// Leaves the picture as it is until release(), a few paints at most, while the model becomes
    /// another one.
    void hold() { mHeld.start(); }
    void release();

    const TARN::GraphGestures& gestures() const { return mGestures; }

    // Short forms. Colours are parts from 0 to 1.

    void setMaxParameters(unsigned n);
    void setParameterName(unsigned i, const QString& name);
    void setParameterColor(unsigned i, float red, float green, float blue);
    void activateSamples(unsigned i, bool on);
    void setActive(unsigned i, bool active);
    void setTime(double time) { mFeed.setTime(time); }
    void putValue(unsigned i, double value) { mFeed.putValue(i, value); }
    bool getValue(unsigned i, double time, double& value) const;
    void getParameterRangeX(unsigned i, double& first, double& last) const;
    void getParameterRangeY(unsigned i, double& min, double& max) const;
    void clear() { mModel.clear(); }
    void setCursorPosition(double time) { mModel.setCursorPosition(time); }
    void setMarker(double start, double stop) { mModel.setMarker(start, stop); }
    void zoomToMarker() { mModel.zoomToMarker(); }
    void setT0(float time);
    void setXmin(float time);
    void setXmax(float time);
    void setXrange(float width);
    void setYmin(float value);
    void setYmax(float value);
    void setAutoScaleY(bool on);
    void setCursorMode(TARN::eCursorMode mode) { mModel.setCursorMode(mode); }
    void setGraphMode(TARN::eGraphMode mode) { mModel.setGraphMode(mode); }
    void setDisplayMode(TARN::eDisplayMode mode) { mModel.setDisplayMode(mode); }

    QSize sizeHint() const override { return {640, 400}; }

Q_SIGNALS:
    /// The user moved the cursor.
    void signalCursor(float t, double value);
    /// The user moved a marker.
    void signalMarker(float t0, float t1);
    /// The user panned, which ends the automatic mode.
    void signalManMode();
    /// The user follows a link of the empty text.
    void signalLink(const QString& link);
    /// The user asks what can be done with a curve, the one last pointed at.
    void signalMenu(QPoint global);

public Q_SLOTS:
    void slotTimeout();
    void slotTimeoutRecalc();
    void slotTimeoutCursor();

protected:
    void initializeGL() override {}
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    // The keys that are held come with each event; none is passed on.
    void keyReleaseEvent(QKeyEvent*) override {}
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;

private:
    QRectF plot() const;
    QColor emptyColor() const;
    QString linkAt(QPointF place) const;
    void updateMouse(QPointF position);

    TARN::GraphModel mModel;
    TARN::GraphStyle mStyle;
    TARN::LiveFeed mFeed;
    TARN::GraphGestures mGestures;
    TARN::LegendGestures mLegend;
    QPointF mRightPressed;
    TARN::GlCanvas mCanvas;
    TARN::TextLayout mTexts;
    TARN::GraphSpots mSpots;
    TARN::EmptyText mEmpty;
    QString mPressedLink;
    QTimer mRepaintTimer;
    QTimer mRecalcTimer;
    QTimer mHeld; ///< runs while the picture is left as it is
    QElapsedTimer mSinceRedraw;
};
