#include "sqlwriters.h"

#include "changeunit.h"
#include "jeterrors.h"
#include "session.h"
#include "textfuncs.h"

#include <QDateTime>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The batch writers handle results themselves; ExecuteSql knows them by the
// caption of the active window.
bool IsBatchWindowActive(const Session& session) {
    if (!session.ActiveCaption)
        return false;
    const QString caption = session.ActiveCaption();
    return caption == u"Daten Import" || caption.left(10) == u"Detailinfo" ||
           caption.left(13) == u"Spalte füllen";
}

int AnswerDuplicateKey(Session& session) {
    EntryRecord& entry = session.Entry;
    if (session.EditMode && session.OldNr == entry.Nr)
        return ExecuteSameRecord;

    BuildSelectEntrySql(session, entry.Nr);
    session.SharedRecordset = session.CollectionDb->Select(session.CurrentSql);
    QString titel;
    if (session.SharedRecordset.Next())
        titel = session.SharedRecordset.Text(session.SharedRecordset.ColumnIndex(u"titel"_s));
    const Answer answer = session.prompter->Ask({u"Vorhandenen Eintrag überschreiben"_s,
                                                 u"Der Eintrag Nummer %1:\n\n'%2'\n\nist bereits in der "
                                                 u"Datenbank vorhanden.\nMöchtest Du den Datensatz "
                                                 "ändern?"_s.arg(entry.Nr)
                                                     .arg(titel),
                                                 MessageIcon::Question, MessageButtons::YesNo});
    session.SharedRecordset.Close();
    if (answer != Answer::Yes)
        return ExecuteDeclined;

    if (session.EditMode) {
        DeleteEntry(session, session.OldNr);
        if (session.RemoveEntryRows)
            session.RemoveEntryRows(session.OldNr);
    } else if (session.RemoveEntryRows) {
        session.RemoveEntryRows(entry.Nr);
    }
    DeleteDetails(session, entry.Nr);
    DeleteDependents(session, entry.Nr);
    return ExecuteOverwriteAgreed;
}

} // namespace

DbError OpenCollectionDatabase(Session& session, const QString& path) {
    DbError error;
    session.CollectionDb = Database::Open(path, &error);
    return error;
}

void BuildSelectEntrySql(Session& session, int nr) {
    session.CurrentSql = u"SELECT * FROM HEFTLIST WHERE Nr=%1;"_s.arg(nr);
}

void BuildDeleteEntrySql(Session& session, int nr) {
    session.CurrentSql = u"DELETE FROM HEFTLIST WHERE Nr=%1;"_s.arg(nr);
}

void BuildInsertEntrySql(Session& session) {
    const EntryRecord& e = session.Entry;
    session.CurrentSql =
        u"INSERT INTO HEFTLIST (Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung) VALUES (%1, "
        "'%2', '%3', %4, '%5', %6, '%7');"_s.arg(QString::number(e.Nr), e.Autor, e.Titel,
                                                 QString::number(e.Auflage), e.Zyklus,
                                                 e.GL ? u"255"_s : u"0"_s, e.Bemerkung);
}

void BuildUpdateEntrySql(Session& session) {
    const EntryRecord& e = session.Entry;
    session.CurrentSql =
        u"UPDATE HEFTLIST SET Nr=%1, Autor='%2', Titel='%3', Zyklus='%4', Auflage=%5, GL=%6, "
        "Bemerkung='%7' WHERE Nr=%1;"_s.arg(QString::number(e.Nr), e.Autor, e.Titel, e.Zyklus,
                                            QString::number(e.Auflage), e.GL ? u"255"_s : u"0"_s,
                                            e.Bemerkung);
}

int InsertEntry(Session& session) {
    BuildInsertEntrySql(session);
    return ExecuteSql(session);
}

int UpdateEntry(Session& session) {
    BuildUpdateEntrySql(session);
    return ExecuteSql(session);
}

int DeleteEntry(Session& session, int nr) {
    BuildDeleteEntrySql(session, nr);
    return ExecuteSql(session);
}

int DeleteDetails(Session& session, int nr) {
    return ExecuteSql(session, u"DELETE FROM Details WHERE Nr=%1;"_s.arg(nr));
}

void DeleteDependents(Session& session, int nr) {
    for (const char16_t* table : {u"Gestaltung", u"Status", u"Links"})
        ExecuteSql(session, u"DELETE FROM %1 WHERE Nr=%2;"_s.arg(QStringView(table)).arg(nr));
}

int DeleteEntryCascade(Session& session, int nr) {
    const int result = DeleteEntry(session, nr);
    DeleteDetails(session, nr);
    DeleteDependents(session, nr);
    return result;
}

int MoveDetails(Session& session, int oldNr, int newNr) {
    return ExecuteSql(session, u"UPDATE Details SET Nr=%1 WHERE Nr=%2;"_s.arg(newNr).arg(oldNr));
}

void MoveDependents(Session& session, int oldNr, int newNr) {
    for (const char16_t* table : {u"Gestaltung", u"Status", u"Links"})
        ExecuteSql(session, u"UPDATE %1 SET Nr=%2 WHERE Nr=%3;"_s.arg(QStringView(table)).arg(newNr).arg(oldNr));
}

void MoveEntryRows(Session& session, int oldNr, int newNr) {
    DeleteEntry(session, oldNr);
    DeleteDetails(session, newNr);
    MoveDetails(session, oldNr, newNr);
    MoveDependents(session, oldNr, newNr);
}

QString LastChangeStamp(const QDateTime& moment) {
    return moment.toString(u"yyyy-MM-dd"_s) + u" um "_s + moment.toString(u"hh:mm:ss"_s);
}

void StampLastChange(Session& session, int nr) {
    session.CurrentSql = u"DELETE FROM Status WHERE Nr=%1 AND ENum=1;"_s.arg(nr);
    ExecuteSqlQuiet(session);
    session.CurrentSql = u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (%1, 1, '%2');"_s.arg(nr).arg(
        LastChangeStamp(QDateTime::currentDateTime()));
    ExecuteSqlQuiet(session);
}

void GetNrRange(Session& session, const QString& tail, int& lowest, int& highest) {
    lowest = session.CollectionDb->SelectValue(u"SELECT MIN(Nr) FROM HEFTLIST "_s + tail).toInt();
    highest = session.CollectionDb->SelectValue(u"SELECT MAX(Nr) FROM HEFTLIST "_s + tail).toInt();
}

QString FieldOfZeroLengthError(const QString& description) {
    // Behind the first apostrophe, without the table prefix "HEFTLIST.",
    // up to and including the next apostrophe.
    const qsizetype quote = description.indexOf(u'\'');
    if (quote < 0)
        return {};
    const QString rest = description.mid(quote + 1).mid(9);
    const qsizetype close = rest.indexOf(u'\'');
    return close < 0 ? rest : rest.left(close + 1);
}

int ExecuteSql(Session& session) {
    const DbError error = session.CollectionDb->Execute(session.CurrentSql);
    if (!error)
        return ExecuteDone;
    if (IsBatchWindowActive(session)) {
        if (error.number != JetDuplicateKey)
            session.WriteLog(error.number, error.description);
        return error.number;
    }
    switch (error.number) {
    case JetDuplicateKey:
        return AnswerDuplicateKey(session);
    case JetSyntaxInExpression:
    case JetUpdateSyntax:
        session.WriteLog(error.number, error.description + u"\r\n"_s + session.CurrentSql);
        return error.number;
    case JetZeroLengthString:
        session.prompter->Tell(u"Hinweis auf ein DB Problem"_s,
                               u"Das Feld '"_s + FieldOfZeroLengthError(error.description) +
                                   u"\rmuß einen Text enthalten!"_s,
                               MessageIcon::Exclamation);
        return error.number;
    default:
        session.WriteLog(error.number, error.description);
        return error.number;
    }
}

int ExecuteSql(Session& session, const QString& sql)
{
    session.CurrentSql = sql;
    return ExecuteSql(session);
}

int ExecuteSqlQuiet(Session& session) {
    return session.CollectionDb->Execute(session.CurrentSql).number;
}

int ExecuteCycleSql(Session& session) {
    if (!session.CycleDb)
        return JetFileNotFound;
    ChangeUnit unit(session, *session.CycleDb);
    const int result = session.CycleDb->Execute(session.CurrentSql).number;
    const DbError lost = unit.Commit();
    return result != 0 ? result : lost.number;
}

void CloseDatabases(Session& session) {
    session.SharedRecordset.Close();
    session.CollectionDb.reset();
    session.CycleDb.reset();
}

} // namespace heft
