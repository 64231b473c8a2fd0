#include "base/Diagnostics.h"
#include "cli/CommandLine.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    TARN::setDiagnosticStream(stderr);
    return TARN::runCommandLine(argc, argv, std::cout, std::cerr);
}
