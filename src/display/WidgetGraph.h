#pragma once

#include "display/GraphCanvas.h"
#include "display/GraphLine.h"
#include "display/GraphModel.h"
#include "display/GraphTexts.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtOpenGLWidgets/QOpenGLWidget>

/// An oscilloscope: curves over time, drawn with OpenGL, with a cursor, two markers and a legend.
/// Knows its curves by index; what is done to one that does not exist is ignored. Times are
/// seconds. See GraphModel for what each operation does.
class WidgetGraph : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit WidgetGraph(QWidget* parent = nullptr);

    /// Whether this display gives a context that a graph can be drawn in. Asked before a widget
    /// is made: one without a context stays blank.
    static bool canDraw();

    const TARN::GraphModel& model() const { return mModel; }
    /// The columns of a curve as they would be drawn now.
    std::span<const TARN::FrameType> frames(unsigned i) { return mModel.frames(i); }

    /// Told in the middle of the plot while no active curve has a sample.
    void setEmptyText(const QString& text);

    void setMaxParameters(unsigned n);
    void setParameterName(unsigned i, const QString& name);
    void setParameterColor(unsigned i, float red, float green, float blue);
    void setActive(unsigned i, bool active);
    void activateSamples(unsigned i, bool on);

    void setTime(double time) { mModel.setTime(time); }
    void putValue(unsigned i, double value) { mModel.putValue(i, value); }
    void putSeries(unsigned i, std::span<const double> times, std::span<const double> values);
    bool getValue(unsigned i, double time, double& value) const;
    void getParameterRangeX(unsigned i, double& first, double& last) const;
    void getParameterRangeY(unsigned i, double& min, double& max) const;
    void clear();

    void setCursorPosition(double time);
    void setMarker(double start, double stop);
    void zoomToMarker();
    void setT0(float time);
    void setXmin(float time);
    void setXmax(float time);
    void setXrange(float width);
    void setYmin(float value);
    void setYmax(float value);
    void setAutoScaleY(bool on) { mModel.setAutoScaleY(on); }
    void setCursorMode(TARN::eCursorMode mode);
    void setGraphMode(TARN::eGraphMode mode);
    void setDisplayMode(TARN::eDisplayMode mode);
    void recalcFrameBuffer();

    void setBackColor(float red, float green, float blue);
    void setGridColor(float red, float green, float blue);
    void setLabelColor(float red, float green, float blue);
    void setLabelBackColor(float red, float green, float blue);
    void activateGrid(bool on);
    void activateCursor(bool on);
    void activateLegend(bool on);

    /// The value under the cursor that keys move, and whether it is shown.
    double keyCursor() const { return mKeyCursor; }
    bool keyCursorShown() const { return mKeyCursorShown; }

    QSize sizeHint() const override { return {640, 400}; }

Q_SIGNALS:
    /// The user moved the cursor.
    void signalCursor(float t, double value);
    /// The user moved a marker.
    void signalMarker(float t0, float t1);
    /// The user panned, which ends the automatic mode.
    void signalManMode();
    /// The user changed a mode by key.
    void signalKeyMode();

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
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // Drawing.
    void drawGraph();
    void drawBackground();
    void drawTicksX();
    void drawTicksY(const TARN::ParStruct* curve);
    void drawParameter(TARN::ParStruct& curve);
    void drawMarker();
    void drawCursor();
    void drawCursorValues(double x, double y);
    void drawOutline();
    void drawLabels();
    void paintTexts(QPainter& painter) const;
    void labelTickY(double y, const QString& text, const TARN::GraphColor& color,
                    const QRectF& area);
    QRectF plotBox() const;
    double keyCursorY() const;
    const TARN::ParStruct* keyCurve() const;

    // Input.
    void changeByKey(int key);
    void moveCursorX(double pixels);
    void moveCursorY(double pixels);
    void reportCursor();
    void setCursorFrom(QPointF position);
    void moveNearerMarker(double time);
    void pan(double x);
    double timeAt(QPointF position) const;

    TARN::GraphModel mModel;
    TARN::GraphCanvas mCanvas;
    TARN::GraphLine mLine;
    TARN::GraphTexts mTexts;
    QString mEmptyText;
    double mWidestLabel = 0.0; ///< of the value axis in this paint, pixels
    int mSettling = 0;         ///< paints in a row that only changed the scale

    TARN::GraphColor mBackColor{0.0F, 0.0F, 0.0F};
    TARN::GraphColor mGridColor{1.0F, 0.3F, 0.3F};
    TARN::GraphColor mLabelColor{0.0F, 0.0F, 0.0F};
    TARN::GraphColor mLabelBackColor{0.8F, 0.8F, 0.8F};
    bool mGridOn = true;
    bool mCursorOn = true;
    bool mLegendOn = true;

    double mKeyCursor = 0.0;
    bool mKeyCursorShown = false;
    unsigned mKeyCurve = 0; ///< whose strip the cursor's value belongs to
    double mPanX = 0.0;     ///< where a pan began
    double mPanMin = 0.0;   ///< the window then
    double mPanMax = 0.0;

    QTimer mRepaintTimer;
    QTimer mRecalcTimer;
    QTimer mCursorTimer;
    QElapsedTimer mSinceRedraw;
};
