#pragma once
// SQLite's answers told as the Jet error numbers and descriptions that the
// program's callers test for and show.

#include "database.h"

struct sqlite3;

namespace heft {

enum JetError : int {
    JetDuplicateKey = 3022,
    JetFileNotFound = 3024,
    JetDiskFull = 3026,
    JetReadOnly = 3027,
    JetDiskError = 3043,
    JetPathGone = 3044,
    JetFileInUse = 3045,
    JetTableExists = 3010,
    JetTooFewParameters = 3061,
    JetSyntaxInExpression = 3075,
    JetTableNotFound = 3078,
    JetInvalidStatement = 3129,
    JetInsertSyntax = 3134,
    JetTextAfterStatement = 3142,
    JetUpdateSyntax = 3144,
    JetFieldTooSmall = 3163,
    JetRequiredField = 3314,
    JetZeroLengthString = 3315,
    JetDamaged = 3049,
    JetNotADatabase = 3343,
    JetNumericOverflow = 3349,
    JetIndexExists = 3375,
    JetTypeMismatch = 3464,
    JetOtherError = 3000,
};

// The error of the last call on db, for a statement whose text was sql.
DbError JetErrorFromSqlite(sqlite3* db, int resultCode, const QString& sql);
DbError TextAfterStatementError();
DbError EmptyStatementError();
DbError OpenError(int resultCode, const QString& path);
// The file of an open database no longer stands where it was opened.
DbError PathGoneError(const QString& path);
// Errors after which the file can't take the running change: the disk is
// full or failing, the file is damaged, read-only or gone.
bool LosesChange(const DbError& error);

} // namespace heft
