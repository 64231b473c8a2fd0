#include "Suite.h"
#include "base/Diagnostics.h"

#include <QtCore/QByteArray>

#include <CLI/CLI.hpp>
#include <cstdio>

int main(int argc, char** argv)
{
    using namespace TARN;
    Bench::Options options;
    CLI::App app("Measures ORNA against limits and rivals timed in the same run.", "orna-bench");
    app.add_flag("--quick", options.quick, "Leave the 1 GB recording out");
    app.add_flag("--peers", options.peers,
                 "Also compare with other tools where they are installed");
    app.add_flag_callback("--rounds", Bench::showRounds, "Tell each round on standard error");
    app.add_option("only", options.only, "Measure the figures whose names begin like this");
    CLI11_PARSE(app, argc, argv);

    // Standard output is for the figures; the rivals with windows need no display.
    setDiagnosticStream(std::fopen("/dev/null", "w"));
    qputenv("QT_QPA_PLATFORM", QByteArray("offscreen"));
    try {
        Bench::Suite suite(options);
        Bench::loadFigures(suite);
        Bench::decodeFigures(suite);
        Bench::tableFigures(suite);
        Bench::graphFigures(suite);
        Bench::exportFigures(suite);
        Bench::peerFigures(suite);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orna-bench: %s\n", error.what());
        return 1;
    }
    return 0;
}
