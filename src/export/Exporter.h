#pragma once

#include "flight/Flight.h"
#include "profile/Selection.h"

#include <optional>

namespace TARN {

/// Another flight that lies beside the one that is exported, understood by the same profile.
struct ExportReference
{
    std::shared_ptr<const Flight> flight; ///< never null
    double offset = 0.0;                  ///< its time offset, seconds
    double shift = 0.0; ///< seconds that bring its times, with the offset, to the other's clock
};

/// What an export is made of; nothing of it changes meanwhile.
struct ExportInput
{
    std::shared_ptr<const Flight> flight;
    Selection selection;                           ///< of the flight's profile
    double offset = 0.0;                           ///< time offset, seconds
    std::optional<ExportReference> reference = {}; ///< to compare with

    Series series(const ProfileParameter& parameter) const
    {
        return flight->series(parameter, offset);
    }
};

/// How an export ended. A file is written whole or not at all.
struct ExportResult
{
    bool done = false;
    QString message; ///< what failed and why, or what the user should know about the file

    static ExportResult success(const QString& note = {}) { return {true, note}; }
    static ExportResult failure(const QString& reason) { return {false, reason}; }
    /// It was asked to stop: no message, the old file is there.
    static ExportResult stopped() { return {}; }

    explicit operator bool() const { return done; }
};

/// One kind of file that a flight is written to. Wizard, menu and command line are faces of it:
/// they fill its options, ask for its path and run it.
class Exporter
{
public:
    virtual ~Exporter() = default;

    /// The file that will be written.
    virtual QString path() const = 0;

    /// Writes it, on any thread. Refused when it is a file that the flight was read from, when
    /// it can't be meant, and when memory or disk do not suffice.
    ExportResult run(const ExportInput& input, Progress& progress);

protected:
    virtual ExportResult write(const ExportInput& input, Progress& progress) = 0;
};

} // namespace TARN
