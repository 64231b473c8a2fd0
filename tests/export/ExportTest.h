#pragma once

#include "export/Exporter.h"
#include "support/FlightTest.h"

/// Base of the tests of exports.
class ExportTest : public FlightTest
{
protected:
    /// Options for a file in the test's folder.
    template <typename Options>
    Options optionsFor(const QString& file, const TARN::TimeRange& range) const
    {
        Options options;
        options.directory = folder().toStdString();
        options.fileName = file.toStdString();
        options.startTime = range.start;
        options.stopTime = range.stop;
        return options;
    }

    /// The flight with its own offset and everything selected.
    static TARN::ExportInput inputOf(const std::shared_ptr<const TARN::Flight>& flight)
    {
        return {flight, TARN::Selection::all(*flight->profile()), flight->record()->offset()};
    }

    static TARN::ExportResult run(TARN::Exporter&& exporter, const TARN::ExportInput& input,
                                  TARN::Progress progress = {})
    {
        return exporter.run(input, progress);
    }
};
