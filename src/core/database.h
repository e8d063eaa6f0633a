#pragma once
// The collection and cycle files: SQLite answering in the dialect and with the
// error numbers of the Jet engine the program's SQL texts were written for.

#include <QHash>
#include <QString>
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

    // Bulk work (building the shipped files, benchmarks' physical floor):
    // statements between these two run in one transaction.
    void BeginBulk();
    void EndBulk();

    QString Path() const { return m_path; }

private:
    Database(sqlite3* db, QString path) : m_db(db), m_path(std::move(path)) {}
    static std::unique_ptr<Database> OpenWithFlags(const QString& path, int flags, DbError* error);
    // The kept statement of the text's shape with the text's values bound,
    // or nullptr when the text has no shape (or its statement is busy):
    // the text is then prepared as it stands.
    std::shared_ptr<CachedStatement> Borrow(const QString& jetSql);
    void DropStatements();
    sqlite3* m_db = nullptr;
    QString m_path;
    QHash<QString, std::shared_ptr<CachedStatement>> m_statements;
};

} // namespace heft
