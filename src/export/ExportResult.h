#pragma once

#include <QtCore/QString>

#include <functional>

namespace TARN {

/// Hears how much of an export is done, in percent.
using ExportProgress = std::function<void(int percent)>;

/// How an export ended. A file is written whole or not at all.
struct ExportResult
{
    bool done = false;
    QString message; ///< what failed and why, or what the user should know about the file

    static ExportResult success(const QString& note = {}) { return {true, note}; }
    static ExportResult failure(const QString& reason) { return {false, reason}; }

    explicit operator bool() const { return done; }
};

} // namespace TARN
