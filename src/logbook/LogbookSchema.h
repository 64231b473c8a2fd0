#pragma once

#include "logbook/SqlConnection.h"

namespace TARN {

/// The number of the schema that this program writes.
int logbookVersion();

/// Brings the tables to that version, from an older one or, to Create, from nothing; what others
/// do at the same time does no harm. Throws LogbookError: the database is of a newer version, it
/// holds no logbook, or a file holds the tables of another program.
void migrateLogbook(SqlConnection& connection, SqlConnection::Missing missing);

} // namespace TARN
