#pragma once
// The collection and cycle files: SQLite answering in the dialect and with the
// error numbers of the Jet engine the program's SQL texts were written for.

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace heft {

// A prepared statement the database keeps for statements of the same shape.
struct CachedStatement;

// An engine error as the program sees it: a Jet error number (0 = none) and
// a Jet-style English description.
struct DbError {
    int number = 0;
    QString description;
    explicit operator bool() const { return number != 0; }
};

// A read-only, forward-only result ("snapshot") of one SELECT.
class Query {
public:
    Query() = default;
    Query(Query&& other) noexcept;
    Query& operator=(Query&& other) noexcept;
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;
    ~Query();

    bool IsOpen() const { return m_stmt != nullptr; }
    // Steps to the next row; false at the end (and on an error, see Error()).
    bool Next();
    int ColumnCount() const;
    QString ColumnName(int column) const;
    // Column by name, case-blind; -1 when there is none.
    int ColumnIndex(const QString& name) const;
    bool IsNull(int column) const;
    QString Text(int column) const;
    qint64 Int(int column) const;
    double Real(int column) const;
    QVariant Value(int column) const;
    const DbError& Error() const { return m_error; }
    void Close();

private:
    friend class Database;
    Query(sqlite3_stmt* stmt, sqlite3* db) : m_stmt(stmt), m_db(db) {}
    Query(std::shared_ptr<CachedStatement> cached, sqlite3* db);
    sqlite3_stmt* m_stmt = nullptr;
    sqlite3* m_db = nullptr;
    // Set when the statement is the database's kept one: closing hands it
    // back instead of finalizing it.
    std::shared_ptr<CachedStatement> m_cached;
    DbError m_error;
};

class Database {
public:
    // Opens an existing file for exclusive use. A file in use by another
    // program, a missing file or one that is no database gives nullptr and
    // the error.
    static std::unique_ptr<Database> Open(const QString& path, DbError* error);
    // Makes a new, empty file (it must not exist yet), opened as by Open().
    static std::unique_ptr<Database> Create(const QString& path, DbError* error);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Runs one statement in the Jet dialect as its own change.
    DbError Execute(const QString& jetSql);
    // Opens one SELECT in the Jet dialect. On an error the query is closed
    // and *error tells why.
    Query Select(const QString& jetSql, DbError* error = nullptr);
    // First column of the first row, or a null variant.
    QVariant SelectValue(const QString& jetSql, DbError* error = nullptr);

    // Statements that belong together (one entry's change, a batch of an
    // import) reach the file together or not at all: a program killed in
    // between leaves the file as it was before. Pairs nest; only the
    // outermost one commits. An error of one statement stays that
    // statement's; but when the change as a whole is lost (disk full, file
    // damaged or gone), the statements after it are refused with that error
    // and EndChange rolls back and returns it.
    void BeginChange();
    DbError EndChange();
    bool InChange() const { return m_changeDepth > 0; }
    // The error that lost the running change; none while it stands.
    const DbError& LostChange() const { return m_lostChange; }

    // SQLite's own check of the file's structure; one line per fault found,
    // none when the file is sound. Quick skips the checks of the indexes'
    // content.
    QStringList IntegrityFaults(bool quick);
    // Copies the open file, as it stands after the last change, to a new
    // file through SQLite's online backup.
    DbError BackupTo(const QString& targetPath);

    QString Path() const { return m_path; }

private:
    Database(sqlite3* db, QString path) : m_db(db), m_path(std::move(path)) {}
    static std::unique_ptr<Database> OpenWithFlags(const QString& path, int flags, DbError* error);
    // The kept statement of the text's shape with the text's values bound,
    // or nullptr when the text has no shape (or its statement is busy):
    // the text is then prepared as it stands.
    std::shared_ptr<CachedStatement> Borrow(const QString& jetSql);
    void DropStatements();
    // Why a change may not start: the file was found damaged or is gone.
    DbError RefusalOfChanges();
    // After a failed statement: an error that leaves the file unable to
    // take the running change marks it lost, and a damaged file is never
    // written again.
    void NoteFailure(const DbError& error);
    sqlite3* m_db = nullptr;
    QString m_path;
    int m_changeDepth = 0;
    DbError m_lostChange;
    bool m_checked = false;
    DbError m_damage;
    QHash<QString, std::shared_ptr<CachedStatement>> m_statements;
};

} // namespace heft
