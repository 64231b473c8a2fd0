#pragma once

#include "cli/ReferenceInput.h"

#include <CLI/CLI.hpp>

namespace TARN {

// Options that several commands have. What they fill lives as long as the parser.

void addSelection(CLI::App& command, SelectionArguments& selection);
void addRange(CLI::App& command, Range& range);
void addProfile(CLI::App& command, std::string& profile);
void addFiles(CLI::App& command, std::vector<std::string>& files);
void addOut(CLI::App& command, std::string& out);

/// The files of a reference flight, under this name, and what is laid on what.
CLI::Option* addReference(CLI::App& command, const char* name, ReferenceArguments& reference);

} // namespace TARN
