#pragma once

#include "logbook/FlightAdder.h"

namespace TARN {

/// What the user wants of the logbook, in the program's settings.
namespace LogbookSettings {

/// See logbookPlace; empty for the one in the user's data folder. Never holds a password.
QString url();
/// Keeps it without its password, and says why not when it is none: see LogbookError.
void setUrl(const QString& url);

bool addsOpened(); ///< every flight that is opened is added
bool wasAsked();   ///< whether the user has said so or not
void setAddsOpened(bool on);

} // namespace LogbookSettings

/// "3 flights added, 47 already known"; what is damaged with the first reason.
QString addedWords(const AddTotals& totals, const QStringList& damaged);

} // namespace TARN
