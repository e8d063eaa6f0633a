#pragma once
// The settings a collection carries in its own file, read once at start.

#include "database.h"

namespace heft {

class Session;

// Both read session.CollectionDb, which must be open. A Null value leaves
// the setting as it was.

// Reads the first row of KONFIGURATION into session.Config (series, list
// kind, logo, splash, each cut to its length). Returns false with *error set
// when the table can't be read; the caller then reports the failure. An empty
// table is no failure and leaves the four values as they were.
bool ReadConfiguration(Session& session, DbError* error);
// Sets the defaults, then reads Parameter; a missing table is no error.
// A number that doesn't fit its variable (0..255 for MaxAuflage, 16 bits for
// ContentLimit) keeps the default.
void ReadParameters(Session& session);

} // namespace heft
