#include "schema.h"

#include "jetdialect.h"
#include "session.h"
#include "sqlwriters.h"
#include "textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Field sizes of the base tables. The editor's limits are smaller; these
// leave room for what the import and older files bring.
QStringList BaseTableStatements() {
    QStringList statements;
    statements << u"CREATE TABLE HEFTLIST (Nr INTEGER CONSTRAINT Nummer UNIQUE, "_s +
                      TextColumnSql(u"HEFTLIST"_s, u"Autor"_s, 50, false) + u", "_s +
                      TextColumnSql(u"HEFTLIST"_s, u"Titel"_s, 100, false) + u", "_s +
                      ByteColumnSql(u"HEFTLIST"_s, u"Auflage"_s) + u", "_s +
                      TextColumnSql(u"HEFTLIST"_s, u"Zyklus"_s, 10, false) + u", "_s +
                      YesNoColumnSql(u"GL"_s) + u", "_s +
                      TextColumnSql(u"HEFTLIST"_s, u"Bemerkung"_s, 255, true) + u")"_s;
    statements << YesNoTriggersSql(u"HEFTLIST"_s, u"GL"_s);

    QStringList details = {u"Nr INTEGER"_s, TextColumnSql(u"Details"_s, u"Ersterscheinung"_s, 50, true),
                           TextColumnSql(u"Details"_s, u"Untertitel"_s, 255, true)};
    for (int i = 1; i <= 9; ++i)
        details << TextColumnSql(u"Details"_s, u"Person%1"_s.arg(i), 50, true);
    details << TextColumnSql(u"Details"_s, u"Inhalt"_s, 0, true);
    statements << u"CREATE TABLE Details ("_s + details.join(u", "_s) + u')';
    // At most one details row per entry: the detail window's save relies on
    // the duplicate key to turn its insert into an update.
    statements << u"CREATE UNIQUE INDEX INDET ON Details (Nr)"_s;

    statements << u"CREATE TABLE KONFIGURATION (Serie TEXT(50), Liste TEXT(50), Logo TEXT(255), "
                  "Splash TEXT(255));"_s;
    statements << u"CREATE TABLE Parameter (Schluessel LONG, Beschreibung TEXT(100), Wert TEXT(255));"_s;
    return statements;
}

DbError RunAll(Database& db, const QStringList& statements) {
    for (const QString& sql : statements)
        if (DbError error = db.Execute(sql))
            return error;
    return {};
}

} // namespace

const QStringList& UpgradeStatements() {
    static const QStringList statements = {
        u"CREATE TABLE Gestaltung (Nr LONG, TiBiZeichner TEXT(64), IlluZeichner TEXT(64), RZ BIT, "
        "RiZeObjekt TEXT(96), RiZeZeichner TEXT(64), CONSTRAINT Nummer UNIQUE(Nr));"_s,
        u"CREATE TABLE Status (Nr LONG, ENum LONG, StatusWert TEXT(128));"_s,
        u"CREATE INDEX INS1 ON Status (Nr);"_s,
        u"CREATE INDEX INS2 ON Status (ENum);"_s,
        u"CREATE TABLE Links (Nr LONG, ENum LONG, LinkNum LONG, LinkText TEXT(128), LinkSerie TEXT(48));"_s,
        u"CREATE INDEX INL1 ON Links (Nr);"_s,
        u"CREATE INDEX INL2 ON Links (ENum);"_s,
    };
    return statements;
}

void UpgradeSchema(Session& session) {
    for (const QString& sql : UpgradeStatements()) {
        session.CurrentSql = sql;
        ExecuteSqlQuiet(session);
    }
}

std::unique_ptr<Database> CreateCollectionFile(const QString& path, const QString& seriesName,
                                               const QString& listKind, DbError* error) {
    auto db = Database::Create(path, error);
    if (!db)
        return nullptr;
    QStringList statements = BaseTableStatements();
    statements << UpgradeStatements();
    // Attribute rows are read and replaced by number and attribute together
    // (the stamp of every save); this index keeps that fast.
    statements << u"CREATE INDEX INS3 ON Status (Nr, ENum);"_s;
    // The same for links: the import looks each one up by both, and with
    // only the single-column indexes SQLite picks the one on ENum, which
    // walks every entry's link of that place.
    statements << u"CREATE INDEX INL3 ON Links (Nr, ENum);"_s;
    // The statistics count the list by author, by cycle and by both, and
    // the borrowers by name: with these each count is a seek, not a walk
    // over the whole list.
    statements << u"CREATE INDEX INH1 ON HEFTLIST (Autor, Zyklus);"_s;
    statements << u"CREATE INDEX INH2 ON HEFTLIST (Zyklus);"_s;
    statements << u"CREATE INDEX INS4 ON Status (ENum, StatusWert, Nr);"_s;
    statements << u"INSERT INTO KONFIGURATION VALUES ('%1', '%2', 'Logo.svg', 'Splash.svg');"_s.arg(
        QuoteSql(seriesName), QuoteSql(listKind));
    statements << u"INSERT INTO Parameter VALUES (1, 'Höchste Auflage', '5');"_s
               << u"INSERT INTO Parameter VALUES (2, 'Länge des Inhalts', '255');"_s;
    if ((*error = RunAll(*db, statements)))
        return nullptr;
    return db;
}

std::unique_ptr<Database> CreateCycleFile(const QString& path, DbError* error) {
    auto db = Database::Create(path, error);
    if (!db)
        return nullptr;
    if ((*error =
             db->Execute(u"CREATE TABLE ZyklusListe (Zyklus TEXT(8), NrVon LONG, NrBis LONG, ZeitVon LONG, "
                         "ZeitBis LONG, Bezeichnung TEXT(50), Zyklusbereich TEXT(50));"_s)))
        return nullptr;
    // The roman numeral is the cycle's key: an import that brings a cycle
    // again is refused instead of listing it twice.
    if ((*error = db->Execute(u"CREATE UNIQUE INDEX PrimaryKey ON ZyklusListe (Zyklus);"_s)))
        return nullptr;
    return db;
}

} // namespace heft
