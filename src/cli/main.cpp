#include "base/Diagnostics.h"
#include "cli/CommandLine.h"
#include "graph/GraphPicture.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>

#include <clocale>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string_view>

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    TARN::setDiagnosticStream(stderr);
    // Pictures and pages need fonts, databases their drivers; no other command shall wait for them.
    std::optional<QGuiApplication> application;
    std::optional<QCoreApplication> bare;
    const std::string_view command = argc > 1 ? argv[1] : "";
    if (command == "graph" || command == "report") {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application.emplace(argc, argv);
        std::setlocale(LC_NUMERIC, "C"); // it has set the user's, in which 2.5 may be no number
        for (const char* font : {"DejaVuSans", "DejaVuSans-Bold", "DejaVuSansMono"}) {
            QFontDatabase::addApplicationFont(QString(":/cli/%1.ttf").arg(font));
        }
        TARN::setGraphFontFamily("DejaVu Sans Mono");
    } else if (command == "logbook") {
        // What is diagnosed of each of a thousand flights would hide how far it is.
        TARN::setDiagnosticStream(std::fopen("/dev/null", "w"));
        bare.emplace(argc, argv);
        std::setlocale(LC_NUMERIC, "C");
    }
    return TARN::runCommandLine(argc, argv, std::cout, std::cerr);
}
