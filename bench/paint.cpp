// The figures that need a display; prints them like orna-bench does.

#include "Harness.h"
#include "Start.h"
#include "display/WidgetGraph.h"

#include <QtGui/qopengl.h>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

namespace TARN::Bench {

namespace {

constexpr unsigned Curves = 30;
constexpr int Samples = 100'000;
constexpr double Hour = 3600.0;

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
            setActive(i, true);
            putSeries(i, times, values);
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
            const auto all = frames(i);
            require(all.size() > 900, "the graph has too few columns");
            for (const FrameType& frame : all.first(900)) {
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
    for (int i = 0; i < 50; ++i) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
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

} // namespace TARN::Bench

namespace {

void print(const std::string& name, const std::string& only, double (*ratio)())
{
    constexpr double Target = 1.5;
    if (name.starts_with(only)) {
        const double value = ratio();
        std::printf("%s %.4g <=%g %s\n", name.c_str(), value, Target,
                    value <= Target ? "ok" : "short");
    }
}

} // namespace

int main(int argc, char** argv)
{
    std::string only;
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]) == "--rounds") {
            TARN::Bench::showRounds();
        } else if (argv[i][0] != '-') {
            only = argv[i];
        }
    }
    QApplication application(argc, argv);
    if (!WidgetGraph::canDraw()) {
        std::fprintf(stderr, "orna-bench-paint: no OpenGL on this display\n");
        return 1;
    }
    try {
        print("graph.paint", only, TARN::Bench::paintRatio);
        print("start.time", only, TARN::Bench::startRatio);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orna-bench-paint: %s\n", error.what());
        return 1;
    }
    return 0;
}
