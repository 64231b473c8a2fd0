#pragma once

#include <cstdio>

namespace TARN {

/// Writes one printf-style diagnostic line and flushes it, so that the last line before a
/// crash or a power cut is there to read. Goes to standard output unless redirected.
[[gnu::format(printf, 1, 2)]] void diagnose(const char* format, ...);

/// Sends later diagnostics to \p stream (not owned). The command-line companion keeps its
/// standard output for results and passes stderr here.
void setDiagnosticStream(std::FILE* stream);

} // namespace TARN
