#pragma once

#include <QtCore/QString>

#include <stdexcept>

namespace TARN {

/// The logbook can't do what it was asked for; what() is what the user reads. It never holds a
/// password.
struct LogbookError : std::runtime_error
{
    explicit LogbookError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

} // namespace TARN
