#include "database.h"

#include "jetdialect.h"
#include "jeterrors.h"
#include "jetfunctions.h"
#include "sqlshape.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

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

DbError StepToEnd(sqlite3* db, sqlite3_stmt* stmt, const QString& sql)
{
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
    }
    return rc == SQLITE_DONE ? DbError() : JetErrorFromSqlite(db, rc, sql);
}

DbError RunPlain(sqlite3* db, const QString& sql)
{
    DbError error;
    sqlite3_stmt* stmt = PrepareOne(db, sql, &error);
    if (stmt == nullptr)
        return error;
    error = StepToEnd(db, stmt, sql);
    sqlite3_finalize(stmt);
    return error;
}

bool Bind(sqlite3_stmt* stmt, int index, const SqlLiteral& literal)
{
    if (literal.isText) {
        const QByteArray utf8 = literal.value.toUtf8();
        return sqlite3_bind_text(stmt, index, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT) == SQLITE_OK;
    }
    bool whole = false;
    const qint64 number = literal.value.toLongLong(&whole);
    if (whole)
        return sqlite3_bind_int64(stmt, index, number) == SQLITE_OK;
    bool ok = false;
    const double real = literal.value.toDouble(&ok);
    return ok && sqlite3_bind_double(stmt, index, real) == SQLITE_OK;
}

// Statements that change the tables: kept statements may no longer fit, and
// errors of a statement must show when it is opened, not at its first row.
bool ChangesSchema(const QString& sql)
{
    const QStringView start = QStringView(sql).trimmed().left(6);
    return start.compare(u"CREATE", Qt::CaseInsensitive) == 0 || start.left(4).compare(u"DROP", Qt::CaseInsensitive) == 0 ||
           start.left(5).compare(u"ALTER", Qt::CaseInsensitive) == 0;
}

// A file cut short shows itself in its header: the page count it names
// needs more bytes than the file has. Only when no log of changes lies
// beside it, whose pages would still belong to the file, and only when the
// header's count is valid (written by the same change as its counter).
bool IsCutShort(const QString& path)
{
    if (QFileInfo::exists(path + u"-wal"_s))
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file.read(100);
    if (header.size() < 100 || !header.startsWith("SQLite format 3"))
        return false;
    const auto word = [&](int at) { return qFromBigEndian<quint32>(header.constData() + at); };
    const quint16 sizeField = qFromBigEndian<quint16>(header.constData() + 16);
    const qint64 pageSize = sizeField == 1 ? 65536 : sizeField;
    if (word(24) != word(92))
        return false;
    return file.size() < pageSize * qint64(word(28));
}

// Shapes kept at most; a run of statements uses a handful.
constexpr qsizetype MaxCachedStatements = 64;

} // namespace

struct CachedStatement {
    explicit CachedStatement(sqlite3_stmt* prepared) : stmt(prepared) {}
    sqlite3_stmt* stmt;
    bool inUse = false;
    // Let go by the database while a query still reads it: the query
    // finalizes it when it closes.
    bool dropped = false;
};

namespace {

void GiveBack(CachedStatement& cached)
{
    sqlite3_reset(cached.stmt);
    sqlite3_clear_bindings(cached.stmt);
    cached.inUse = false;
    if (cached.dropped)
        sqlite3_finalize(cached.stmt);
}

} // namespace

// ---- Query ----

Query::Query(Query&& other) noexcept
    : m_stmt(std::exchange(other.m_stmt, nullptr)), m_db(other.m_db), m_cached(std::move(other.m_cached)),
      m_error(std::move(other.m_error))
{
}

Query::Query(std::shared_ptr<CachedStatement> cached, sqlite3* db)
    : m_stmt(cached->stmt), m_db(db), m_cached(std::move(cached))
{
}

Query& Query::operator=(Query&& other) noexcept
{
    if (this != &other) {
        Close();
        m_stmt = std::exchange(other.m_stmt, nullptr);
        m_db = other.m_db;
        m_cached = std::move(other.m_cached);
        m_error = std::move(other.m_error);
    }
    return *this;
}

Query::~Query() { Close(); }

void Query::Close()
{
    if (m_cached)
        GiveBack(*std::exchange(m_cached, nullptr));
    else if (m_stmt != nullptr)
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
    const QFileInfo file(path);
    if (!file.isFile()) {
        *error = OpenError(SQLITE_CANTOPEN, path);
        return nullptr;
    }
    // SQLite would take an empty file for a new database and write into it.
    if (file.size() == 0) {
        *error = OpenError(SQLITE_NOTADB, path);
        return nullptr;
    }
    if (IsCutShort(path)) {
        *error = OpenError(SQLITE_CORRUPT, path);
        return nullptr;
    }
    // SQLite opens a write-protected file for reading only; the program
    // writes every change at once and has no use for it.
    if (!file.isWritable()) {
        *error = OpenError(SQLITE_READONLY, path);
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

Database::~Database()
{
    DropStatements();
    sqlite3_close(m_db);
}

std::shared_ptr<CachedStatement> Database::Borrow(const QString& jetSql)
{
    const std::optional<SqlShape> shape = ShapeOf(jetSql);
    if (!shape)
        return nullptr;
    std::shared_ptr<CachedStatement> cached = m_statements.value(shape->text);
    if (cached && cached->inUse)
        return nullptr;
    if (!cached) {
        // A shape that doesn't prepare is left to the text itself, which
        // then gives the error of the text as written.
        const TranslatedSql translated = TranslateJetSql(shape->text);
        DbError error;
        sqlite3_stmt* stmt = translated.followUps.isEmpty() ? PrepareOne(m_db, translated.sql, &error) : nullptr;
        if (stmt == nullptr)
            return nullptr;
        if (sqlite3_bind_parameter_count(stmt) != shape->literals.size()) {
            sqlite3_finalize(stmt);
            return nullptr;
        }
        if (m_statements.size() >= MaxCachedStatements)
            DropStatements();
        cached = std::make_shared<CachedStatement>(stmt);
        m_statements.insert(shape->text, cached);
    }
    for (int i = 0; i < shape->literals.size(); ++i) {
        if (!Bind(cached->stmt, i + 1, shape->literals[i])) {
            sqlite3_clear_bindings(cached->stmt);
            return nullptr;
        }
    }
    cached->inUse = true;
    return cached;
}

void Database::DropStatements()
{
    for (const std::shared_ptr<CachedStatement>& cached : std::as_const(m_statements)) {
        if (cached->inUse)
            cached->dropped = true;
        else
            sqlite3_finalize(cached->stmt);
    }
    m_statements.clear();
}

DbError Database::Execute(const QString& jetSql)
{
    if (m_changeDepth > 0 && m_lostChange)
        return m_lostChange;
    if (m_changeDepth == 0) {
        if (DbError refusal = RefusalOfChanges())
            return refusal;
    }
    DbError error;
    if (const std::shared_ptr<CachedStatement> cached = Borrow(jetSql)) {
        error = StepToEnd(m_db, cached->stmt, jetSql);
        GiveBack(*cached);
    } else {
        if (ChangesSchema(jetSql))
            DropStatements();
        const TranslatedSql translated = TranslateJetSql(jetSql);
        error = RunPlain(m_db, translated.sql);
        for (const QString& followUp : translated.followUps) {
            if (error)
                break;
            error = RunPlain(m_db, followUp);
        }
    }
    if (error)
        NoteFailure(error);
    return error;
}

DbError Database::RefusalOfChanges()
{
    if (m_damage)
        return m_damage;
    if (!QFileInfo::exists(m_path))
        return PathGoneError(m_path);
    return {};
}

void Database::NoteFailure(const DbError& error)
{
    if (error.number == JetDamaged)
        m_damage = error;
    // SQLite gives up the whole transaction on some errors (a full disk
    // among them); what follows would then land piecemeal.
    if (m_changeDepth > 0 && (LosesChange(error) || sqlite3_get_autocommit(m_db)))
        m_lostChange = error;
}

void Database::BeginChange()
{
    if (m_changeDepth++ > 0)
        return;
    m_lostChange = RefusalOfChanges();
    if (m_lostChange)
        return;
    if (const int rc = sqlite3_exec(m_db, "BEGIN", nullptr, nullptr, nullptr); rc != SQLITE_OK)
        m_lostChange = JetErrorFromSqlite(m_db, rc, u"BEGIN"_s);
}

DbError Database::EndChange()
{
    if (m_changeDepth == 0 || --m_changeDepth > 0)
        return {};
    DbError lost = std::exchange(m_lostChange, {});
    if (!lost) {
        const int rc = sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
        if (rc != SQLITE_OK) {
            lost = JetErrorFromSqlite(m_db, rc, u"COMMIT"_s);
            if (lost.number == JetDamaged)
                m_damage = lost;
        }
    }
    if (!sqlite3_get_autocommit(m_db))
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
    return lost;
}

QStringList Database::IntegrityFaults(bool quick)
{
    QStringList faults;
    sqlite3_stmt* stmt = nullptr;
    int rc = sqlite3_prepare_v2(m_db, quick ? "PRAGMA quick_check" : "PRAGMA integrity_check", -1, &stmt, nullptr);
    if (rc == SQLITE_OK)
        rc = SQLITE_ROW;
    while (rc == SQLITE_ROW && (rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        const QString line = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 0)));
        if (line != u"ok")
            faults << line;
    }
    if (rc != SQLITE_DONE)
        faults << JetErrorFromSqlite(m_db, rc, {}).description;
    sqlite3_finalize(stmt);
    if (!faults.isEmpty())
        m_damage = OpenError(SQLITE_CORRUPT, m_path);
    return faults;
}

DbError Database::BackupTo(const QString& targetPath)
{
    sqlite3* target = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(targetPath).constData(), &target,
                             SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (rc == SQLITE_OK) {
        sqlite3_backup* backup = sqlite3_backup_init(target, "main", m_db, "main");
        if (backup != nullptr) {
            // All pages in one step: the program is the file's only user.
            sqlite3_backup_step(backup, -1);
            rc = sqlite3_backup_finish(backup);
        } else {
            rc = sqlite3_errcode(target);
        }
    }
    // The copy stands alone: a plain file without a log of changes beside it.
    if (rc == SQLITE_OK)
        rc = sqlite3_exec(target, "PRAGMA journal_mode=DELETE", nullptr, nullptr, nullptr);
    const DbError error = rc == SQLITE_OK ? DbError() : OpenError(rc, targetPath);
    sqlite3_close(target);
    if (error)
        QFile::remove(targetPath);
    return error;
}

Query Database::Select(const QString& jetSql, DbError* error)
{
    DbError local;
    DbError& target = error ? *error : local;
    target = {};
    if (std::shared_ptr<CachedStatement> cached = Borrow(jetSql))
        return Query(std::move(cached), m_db);
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

} // namespace heft
