#include "base/Diagnostics.h"
#include "cli/CommandLine.h"

#include <QtGui/QGuiApplication>

#include <clocale>
#include <iostream>
#include <optional>
#include <string_view>

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    TARN::setDiagnosticStream(stderr);
    // Pictures need fonts; no other command shall wait for them.
    std::optional<QGuiApplication> fonts;
    if (argc > 1 && std::string_view(argv[1]) == "graph") {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        fonts.emplace(argc, argv);
        std::setlocale(LC_NUMERIC, "C"); // it has set the user's, in which 2.5 may be no number
    }
    return TARN::runCommandLine(argc, argv, std::cout, std::cerr);
}
