#pragma once

#include <iosfwd>

namespace TARN {

/// Runs the command-line companion: results go to \p out, one clear line about a failure to
/// \p error. Returns the exit status: 0 success, 1 failure, 2 wrong usage.
int runCommandLine(int argc, const char* const* argv, std::ostream& out, std::ostream& error);

} // namespace TARN
