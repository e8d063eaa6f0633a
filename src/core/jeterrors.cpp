#include "jeterrors.h"

#include <QRegularExpression>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString Captured(const QString& text, const QString& pattern)
{
    const auto match = QRegularExpression(pattern).match(text);
    return match.hasMatch() ? match.captured(1) : QString();
}

DbError ConstraintError(int extended, const QString& message)
{
    if (extended == SQLITE_CONSTRAINT_UNIQUE || extended == SQLITE_CONSTRAINT_PRIMARYKEY)
        return {JetDuplicateKey,
                u"The changes you requested to the table were not successful because they would create "
                "duplicate values in the index, primary key, or relationship. Change the data in the field "
                "or fields that contain duplicate data, remove the index, or redefine the index to permit "
                "duplicate entries and try again."_s};
    if (extended == SQLITE_CONSTRAINT_NOTNULL)
        return {JetRequiredField,
                u"The field '%1' cannot contain a Null value because the Required property for this field "
                "is set to True. Enter a value in this field."_s.arg(Captured(message, u"failed: (\\S+)"_s))};
    // The CHECK constraints carry a kind and the field in their names.
    const QString field = Captured(message, u"failed: \\w+:(\\S+)"_s);
    if (message.contains(u"failed: empty:"))
        return {JetZeroLengthString, u"Field '%1' cannot be a zero-length string."_s.arg(field)};
    if (message.contains(u"failed: size:"))
        return {JetFieldTooSmall, u"The field is too small to accept the amount of data you attempted to "
                                  "add. Try inserting or pasting less data."_s};
    if (message.contains(u"failed: range:"))
        return {JetNumericOverflow, u"Numeric field overflow."_s};
    return {JetOtherError, message};
}

DbError SyntaxError(const QString& sql)
{
    const QString verb = sql.trimmed().section(u' ', 0, 0).toUpper();
    if (verb == u"UPDATE")
        return {JetUpdateSyntax, u"Syntax error in UPDATE statement."_s};
    if (verb == u"INSERT")
        return {JetInsertSyntax, u"Syntax error in INSERT INTO statement."_s};
    return {JetSyntaxInExpression, u"Syntax error (missing operator) in query expression '%1'."_s.arg(sql)};
}

// The answers about the file rather than the statement.
DbError FileError(int primary, const QString& path)
{
    switch (primary) {
    case SQLITE_FULL:
        return {JetDiskFull, u"Not enough space on disk."_s};
    case SQLITE_IOERR:
        return {JetDiskError, u"Disk or network error."_s};
    case SQLITE_READONLY:
        return {JetReadOnly, u"Cannot update. Database or object is read-only."_s};
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return {JetDamaged, u"Cannot open database '%1'. It may not be a database that your application "
                            "recognizes, or the file may be corrupt."_s.arg(path)};
    default:
        return {};
    }
}

} // namespace

DbError JetErrorFromSqlite(sqlite3* db, int resultCode, const QString& sql)
{
    const QString message = QString::fromUtf8(sqlite3_errmsg(db));
    const int primary = resultCode & 0xff;
    if (primary == SQLITE_CONSTRAINT)
        return ConstraintError(sqlite3_extended_errcode(db), message);
    if (primary == SQLITE_BUSY || primary == SQLITE_LOCKED)
        return {JetFileInUse, u"Could not use '%1'; file already in use."_s.arg(
                                  QString::fromUtf8(sqlite3_db_filename(db, "main")))};
    if (const DbError fileError = FileError(primary, QString::fromUtf8(sqlite3_db_filename(db, "main"))))
        return fileError;
    if (primary == SQLITE_MISMATCH)
        return {JetTypeMismatch, u"Data type mismatch in criteria expression."_s};
    if (primary == SQLITE_ERROR) {
        if (message.contains(u"syntax error") || message.contains(u"incomplete input") ||
            message.contains(u"unrecognized token"))
            return SyntaxError(sql);
        if (const QString table = Captured(message, u"^no such table: (\\S+)"_s); !table.isEmpty())
            return {JetTableNotFound,
                    u"The database engine cannot find the input table or query '%1'. Make sure it exists "
                    "and that its name is spelled correctly."_s.arg(table)};
        if (message.startsWith(u"no such column"))
            return {JetTooFewParameters, u"Too few parameters. Expected 1."_s};
        if (const QString table = Captured(message, u"^table (\\S+) already exists"_s); !table.isEmpty())
            return {JetTableExists, u"Table '%1' already exists."_s.arg(table)};
        if (const QString index = Captured(message, u"^index (\\S+) already exists"_s); !index.isEmpty())
            return {JetIndexExists, u"An index named '%1' already exists."_s.arg(index)};
    }
    return {JetOtherError, message};
}

DbError TextAfterStatementError() { return {JetTextAfterStatement, u"Characters found after end of SQL statement."_s}; }

DbError EmptyStatementError()
{
    return {JetInvalidStatement,
            u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."_s};
}

DbError OpenError(int resultCode, const QString& path)
{
    switch (resultCode & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return {JetFileInUse, u"Could not use '%1'; file already in use."_s.arg(path)};
    case SQLITE_NOTADB:
        return {JetNotADatabase, u"Unrecognized database format '%1'."_s.arg(path)};
    case SQLITE_CANTOPEN:
        return {JetFileNotFound, u"Could not find file '%1'."_s.arg(path)};
    default:
        if (const DbError fileError = FileError(resultCode & 0xff, path))
            return fileError;
        return {JetOtherError, QString::fromUtf8(sqlite3_errstr(resultCode))};
    }
}

DbError PathGoneError(const QString& path)
{
    return {JetPathGone, u"'%1' is not a valid path. Make sure that the path name is spelled correctly and that "
                         "you are connected to the server on which the file resides."_s.arg(path)};
}

bool LosesChange(const DbError& error)
{
    switch (error.number) {
    case JetDiskFull:
    case JetDiskError:
    case JetReadOnly:
    case JetDamaged:
    case JetPathGone:
        return true;
    default:
        return false;
    }
}

} // namespace heft
