#pragma once
// One change of the collection as a whole: the statements run while a
// ChangeUnit lives reach the file together or not at all, so a program
// killed at any moment leaves the entry as it was before or as it is after.
// Each statement still answers for itself as before (an error is reported
// and the next statement runs); the unit only protects against a kill, a
// power loss, a full disk, a damaged or vanished file. Units nest: one
// inside a batch belongs to the batch.
//
// The first change of a day first checks the file and copies it to the
// day's backup; a damaged file takes no change at all.

#include "database.h"

namespace heft {

class Session;

class ChangeUnit {
public:
    // A change of the collection file.
    explicit ChangeUnit(Session& session);
    // A change of the given file of the session (the collection or the
    // cycle file); only the collection is backed up.
    ChangeUnit(Session& session, Database& db);
    ~ChangeUnit();
    ChangeUnit(const ChangeUnit&) = delete;
    ChangeUnit& operator=(const ChangeUnit&) = delete;

    // Ends the unit; the error that lost its change, which has then been
    // told and logged. Called again (or by the destructor) it does nothing.
    DbError Commit();
    // Commits and starts the next unit at once: the batches of a long run.
    DbError CommitAndContinue();

private:
    void Begin();
    Session& m_session;
    Database& m_db;
    bool m_open = false;
};

} // namespace heft
