#pragma once

#include "cli/Inputs.h"
#include "export/ExportOptions.h"
#include "export/Exporter.h"

namespace TARN {

/// Sets what all exports share: where to, and from when to when.
void complete(ExportOptions& options, const std::string& out, const Range& range,
              const TimeRange& whole);

/// What is exported. Throws CommandFailure.
ExportInput inputOf(const std::string& profile, const std::vector<std::string>& files,
                    const SelectionArguments& selection);

/// Writes the file. Throws CommandFailure.
void runExport(Exporter&& exporter, const ExportInput& input);

} // namespace TARN
