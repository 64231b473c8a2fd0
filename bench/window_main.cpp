// The figures that need a display; prints them like orna-bench does.

#include "Suite.h"
#include "Window.h"
#include "graph/GraphContext.h"

#include <QtWidgets/QApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    using namespace TARN;
    Bench::Options options;
    if (const auto status = Bench::parseOptions(options, argc, argv)) {
        return *status;
    }
    QApplication application(argc, argv);
    if (!canDrawGraph()) {
        std::fprintf(stderr, "orna-bench-window: no OpenGL on this display\n");
        return 1;
    }
    return Bench::measure(options, {Bench::paintFigures, Bench::trackFigures, Bench::startFigures,
                                    Bench::windowFigures, Bench::logbookWindowFigures});
}
