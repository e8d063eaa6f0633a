#pragma once
// The settings a collection carries in its own file, read once at start.

#include "database.h"

namespace heft {

class Session;

// Reads the first row of KONFIGURATION into session.Config (series, list
// kind, logo, splash, each cut to its length). Returns false with *error set
// when the table can't be read; the caller then reports the failure.
bool ReadConfiguration(Session& session, DbError* error);
// Sets the four defaults, then reads Parameter; a missing table is no error.
void ReadParameters(Session& session);

} // namespace heft
