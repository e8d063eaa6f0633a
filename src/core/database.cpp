#include "database.h"

#include "jetdialect.h"
#include "jeterrors.h"
#include "jetfunctions.h"

#include <QFileInfo>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Prepares exactly one statement. Text after it (other than blanks) is an
// error as in Jet: SQLite would otherwise run the first statement and drop
// the rest, and a stray apostrophe could turn a value into a shorter but
// valid statement.
sqlite3_stmt* PrepareOne(sqlite3* db, const QString& sql, DbError* error)
{
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    const char* tail = nullptr;
    const int rc = sqlite3_prepare_v2(db, utf8.constData(), int(utf8.size()), &stmt, &tail);
    if (rc != SQLITE_OK) {
        *error = JetErrorFromSqlite(db, rc, sql);
        return nullptr;
    }
    if (!QByteArrayView(tail, utf8.constData() + utf8.size() - tail).trimmed().isEmpty()) {
        sqlite3_finalize(stmt);
        *error = TextAfterStatementError();
        return nullptr;
    }
    if (stmt == nullptr)
        *error = EmptyStatementError();
    return stmt;
}

DbError RunPlain(sqlite3* db, const QString& sql)
{
    DbError error;
    sqlite3_stmt* stmt = PrepareOne(db, sql, &error);
    if (stmt == nullptr)
        return error;
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
    }
    if (rc != SQLITE_DONE)
        error = JetErrorFromSqlite(db, rc, sql);
    sqlite3_finalize(stmt);
    return error;
}

} // namespace

// ---- Query ----

Query::Query(Query&& other) noexcept
    : m_stmt(std::exchange(other.m_stmt, nullptr)), m_db(other.m_db), m_error(std::move(other.m_error))
{
}

Query& Query::operator=(Query&& other) noexcept
{
    if (this != &other) {
        Close();
        m_stmt = std::exchange(other.m_stmt, nullptr);
        m_db = other.m_db;
        m_error = std::move(other.m_error);
    }
    return *this;
}

Query::~Query() { Close(); }

void Query::Close()
{
    if (m_stmt != nullptr)
        sqlite3_finalize(m_stmt);
    m_stmt = nullptr;
}

bool Query::Next()
{
    if (m_stmt == nullptr)
        return false;
    const int rc = sqlite3_step(m_stmt);
    if (rc == SQLITE_ROW)
        return true;
    if (rc != SQLITE_DONE)
        m_error = JetErrorFromSqlite(m_db, rc, QString::fromUtf8(sqlite3_sql(m_stmt)));
    return false;
}

int Query::ColumnCount() const { return m_stmt ? sqlite3_column_count(m_stmt) : 0; }

QString Query::ColumnName(int column) const { return QString::fromUtf8(sqlite3_column_name(m_stmt, column)); }

int Query::ColumnIndex(const QString& name) const
{
    for (int i = 0; i < ColumnCount(); ++i)
        if (ColumnName(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

bool Query::IsNull(int column) const { return sqlite3_column_type(m_stmt, column) == SQLITE_NULL; }

QString Query::Text(int column) const
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_stmt, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(m_stmt, column));
}

qint64 Query::Int(int column) const { return sqlite3_column_int64(m_stmt, column); }

double Query::Real(int column) const { return sqlite3_column_double(m_stmt, column); }

QVariant Query::Value(int column) const
{
    switch (sqlite3_column_type(m_stmt, column)) {
    case SQLITE_INTEGER:
        return Int(column);
    case SQLITE_FLOAT:
        return Real(column);
    case SQLITE_NULL:
        return {};
    default:
        return Text(column);
    }
}

// ---- Database ----

std::unique_ptr<Database> Database::OpenWithFlags(const QString& path, int flags, DbError* error)
{
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, flags, nullptr);
    if (rc != SQLITE_OK) {
        *error = OpenError(rc, path);
        sqlite3_close(db);
        return nullptr;
    }
    sqlite3_extended_result_codes(db, 1);
    RegisterJetFunctions(db);
    // Exclusive from the start: the lock is taken at once and held until the
    // file is closed, so a second program fails to open it. No busy timeout:
    // "in use" is the answer, not a wait. WAL with NORMAL sync keeps every
    // statement its own durable change without waiting for the disk each time.
    for (const char* setup : {"PRAGMA locking_mode=EXCLUSIVE", "PRAGMA journal_mode=WAL",
                              "PRAGMA synchronous=NORMAL", "BEGIN EXCLUSIVE", "COMMIT"}) {
        const int setupRc = sqlite3_exec(db, setup, nullptr, nullptr, nullptr);
        if (setupRc != SQLITE_OK) {
            *error = OpenError(setupRc, path);
            sqlite3_close(db);
            return nullptr;
        }
    }
    // A file that is no database only shows itself at the first read.
    const int schemaRc = sqlite3_exec(db, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    if (schemaRc != SQLITE_OK) {
        *error = OpenError(schemaRc, path);
        sqlite3_close(db);
        return nullptr;
    }
    return std::unique_ptr<Database>(new Database(db, path));
}

std::unique_ptr<Database> Database::Open(const QString& path, DbError* error)
{
    if (!QFileInfo(path).isFile()) {
        *error = OpenError(SQLITE_CANTOPEN, path);
        return nullptr;
    }
    return OpenWithFlags(path, SQLITE_OPEN_READWRITE, error);
}

std::unique_ptr<Database> Database::Create(const QString& path, DbError* error)
{
    if (QFileInfo::exists(path)) {
        *error = {JetTableExists, u"Database '%1' already exists."_s.arg(path)};
        return nullptr;
    }
    return OpenWithFlags(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, error);
}

Database::~Database() { sqlite3_close(m_db); }

DbError Database::Execute(const QString& jetSql)
{
    const TranslatedSql translated = TranslateJetSql(jetSql);
    DbError error = RunPlain(m_db, translated.sql);
    for (const QString& followUp : translated.followUps) {
        if (error)
            break;
        error = RunPlain(m_db, followUp);
    }
    return error;
}

Query Database::Select(const QString& jetSql, DbError* error)
{
    DbError local;
    DbError& target = error ? *error : local;
    target = {};
    sqlite3_stmt* stmt = PrepareOne(m_db, TranslateJetSql(jetSql).sql, &target);
    return stmt ? Query(stmt, m_db) : Query();
}

QVariant Database::SelectValue(const QString& jetSql, DbError* error)
{
    Query query = Select(jetSql, error);
    if (!query.Next()) {
        if (error && query.Error())
            *error = query.Error();
        return {};
    }
    return query.Value(0);
}

void Database::BeginBulk() { sqlite3_exec(m_db, "BEGIN", nullptr, nullptr, nullptr); }

void Database::EndBulk() { sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr); }

} // namespace heft
