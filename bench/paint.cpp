#include "Suite.h"
#include "Window.h"
#include "graph/WidgetGraph.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/qopengl.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>

namespace TARN::Bench {

namespace {

constexpr unsigned Curves = 30;
constexpr int FewSamples = 100'000;
constexpr int ManySamples = 1'000'000;
constexpr double Hour = 3600.0;
constexpr std::size_t Columns = 850; // of the plot; the rest of the width is labels

/// The graph, and the same lines without one.
class PaintedGraph : public WidgetGraph
{
public:
    explicit PaintedGraph(int samples = FewSamples)
    {
        resize(1000, 700);
        setMaxParameters(Curves);
        for (unsigned i = 0; i < Curves; ++i) {
            setActive(i, true);
            model().curves().setSeries(i, curveOf(samples, 0.0));
        }
        setGraphMode(GraphManual);
        setDisplayMode(DisplaySplit);
        setXmin(0.0F);
        setXmax(static_cast<float>(Hour));
    }

    void addReference(int samples)
    {
        for (ParStruct& curve : model().curves().all()) {
            curve.reference.samples = curveOf(samples, 0.3);
        }
    }

    /// A step of the wheel until it is painted.
    double zoomSeconds(bool withReference)
    {
        mStep = mStep == 0.05 ? 0.06 : 0.05;
        model().layout().setReference({10.0, withReference});
        model().window().set(mStep * Hour, (1.0 - mStep) * Hour);
        const double seconds = paintSeconds([this] { model().windowChanged(); });
        const ParStruct& curve = model().curves().all().front();
        const auto columns = curve.reference.frames.frames().size();
        require(withReference ? columns + 10 > curve.frames.frames().size() : columns == 0,
                "the reference has too few columns");
        return seconds;
    }

    double paintSeconds(const std::function<void()>& before = [] {})
    {
        makeCurrent();
        const double seconds = secondsOf([&] {
            before();
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
    static std::shared_ptr<const CurveSamples> curveOf(int count, double phase)
    {
        std::vector<double> times;
        std::vector<double> values;
        for (int k = 0; k < count; ++k) {
            times.push_back(k * Hour / count);
            values.push_back(std::sin(k * 100.0 / count + phase) +
                             static_cast<double>(k * 7919LL % 1000) * 1e-3);
        }
        auto samples = std::make_shared<CurveSamples>();
        samples->putSeries(times, values);
        return samples;
    }

    double mStep = 0.05; ///< of the hour that the next zoom leaves out at its ends

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

void expose(PaintedGraph& graph)
{
    graph.show();
    QEventLoop exposed;
    QTimer::singleShot(1000, &exposed, &QEventLoop::quit);
    exposed.exec();
}

double compareRatio(int samples)
{
    constexpr int Rounds = 15;
    PaintedGraph graph(samples);
    graph.addReference(samples);
    expose(graph);
    std::vector<double> ratios;
    for (int i = 0; i < Rounds; ++i) {
        graph.zoomSeconds(true);
        const double both = graph.zoomSeconds(true);
        graph.zoomSeconds(false);
        ratios.push_back(both / graph.zoomSeconds(false));
    }
    std::ranges::sort(ratios);
    return ratios[Rounds / 2];
}

double paintRatio()
{
    constexpr int Rounds = 15;
    PaintedGraph graph;
    expose(graph);
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
    // Zooming with a reference, against without; sixty curves against thirty.
    suite.figure("graph.compare", 2.0,
                 [&] { return compareRatio(suite.options().quick ? FewSamples : ManySamples); });
}

} // namespace TARN::Bench
