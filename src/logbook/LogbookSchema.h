#pragma once

#include "logbook/SqlConnection.h"

namespace TARN {

/// The number of the schema that this program writes.
int logbookVersion();

/// Brings the tables to that version, from nothing or from an older one; what others do at the
/// same time does no harm. Throws LogbookError: the database is of a newer version, or a file
/// holds the tables of another program.
void migrateLogbook(SqlConnection& connection);

} // namespace TARN
