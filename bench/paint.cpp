#include "Suite.h"
#include "Window.h"
#include "graph/WidgetGraph.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/qopengl.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

namespace TARN::Bench {

namespace {

constexpr unsigned Curves = 30;
constexpr int Samples = 100'000;
constexpr double Hour = 3600.0;
constexpr std::size_t Columns = 850; // of the plot; the rest of the width is labels

/// The graph, and the same lines without one.
class PaintedGraph : public WidgetGraph
{
public:
    PaintedGraph()
    {
        resize(1000, 700);
        setMaxParameters(Curves);
        std::vector<double> times;
        std::vector<double> values;
        for (int k = 0; k < Samples; ++k) {
            times.push_back(k * Hour / Samples);
            values.push_back(std::sin(k * 1e-3) + (k * 7919 % 1000) * 1e-3);
        }
        for (unsigned i = 0; i < Curves; ++i) {
            auto samples = std::make_shared<CurveSamples>();
            samples->putSeries(times, values);
            setActive(i, true);
            model().curves().setSeries(i, samples);
        }
        setGraphMode(GraphManual);
        setDisplayMode(DisplaySplit);
        setXmin(0.0F);
        setXmax(static_cast<float>(Hour));
    }

    double paintSeconds()
    {
        makeCurrent();
        const double seconds = secondsOf([this] {
            paintGL();
            glFinish();
        });
        doneCurrent();
        return seconds;
    }

    /// Cleared, then one line strip a curve: first, lowest, highest and last of each column.
    double bareSeconds()
    {
        const std::vector<float> vertices = bareVertices();
        const auto count = static_cast<GLsizei>(vertices.size() / 2 / Curves);
        makeCurrent();
        const double seconds = secondsOf([&] {
            glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
            glEnableClientState(GL_VERTEX_ARRAY);
            glVertexPointer(2, GL_FLOAT, 0, vertices.data());
            for (unsigned i = 0; i < Curves; ++i) {
                glDrawArrays(GL_LINE_STRIP, static_cast<GLint>(i) * count, count);
            }
            glDisableClientState(GL_VERTEX_ARRAY);
            glFinish();
        });
        doneCurrent();
        return seconds;
    }

private:
    std::vector<float> bareVertices()
    {
        std::vector<float> vertices;
        const float strip = static_cast<float>(height()) / Curves;
        for (unsigned i = 0; i < Curves; ++i) {
            const auto all = model().layout().frames(i);
            require(all.size() > Columns, "the graph has too few columns");
            for (const FrameType& frame : all.first(Columns)) {
                for (const double value : {frame.first, frame.low, frame.high, frame.last}) {
                    vertices.push_back(static_cast<float>(frame.time / Hour * width()));
                    vertices.push_back((static_cast<float>(i) + 0.5F) * strip +
                                       static_cast<float>(value) * strip / 4.0F);
                }
            }
        }
        return vertices;
    }
};

double paintRatio()
{
    constexpr int Rounds = 15;
    PaintedGraph graph;
    graph.show();
    QEventLoop exposed;
    QTimer::singleShot(1000, &exposed, &QEventLoop::quit);
    exposed.exec();
    std::vector<double> ratios;
    for (int i = 0; i < Rounds; ++i) {
        graph.paintSeconds();
        const double ours = graph.paintSeconds();
        graph.bareSeconds();
        ratios.push_back(ours / graph.bareSeconds());
    }
    std::ranges::sort(ratios);
    return ratios[Rounds / 2];
}

} // namespace

void paintFigures(Suite& suite)
{
    suite.figure("graph.paint", 1.5, paintRatio);
}

} // namespace TARN::Bench
