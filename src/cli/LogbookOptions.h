#pragma once

#include "cli/LogbookCommand.h"

#include <CLI/CLI.hpp>

namespace TARN {

/// Adds the command `logbook` with its parts. What they fill lives as long as the parser.
void addLogbook(CLI::App& app, LogbookArguments& arguments, std::ostream& out, std::ostream& error);

} // namespace TARN
