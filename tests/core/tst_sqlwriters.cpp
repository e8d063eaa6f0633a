// The writers of the collection and ExecuteSql's answers: when it asks, when
// it keeps quiet, what it returns and what it leaves in the log.

#include "testmain.h"
#include "testsupport.h"

#include "core/schema.h"
#include "core/sqlwriters.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

QString LogText(const TempCollection& c)
{
    QFile f(c.session.log.Path());
    return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
}

int Count(TempCollection& c, const QString& table, int nr)
{
    return c.Value(u"SELECT COUNT(*) FROM %1 WHERE Nr=%2;"_s.arg(table).arg(nr)).toInt();
}

void AddDependents(TempCollection& c, int nr)
{
    c.Exec(u"INSERT INTO Details (Nr, Untertitel) VALUES (%1, 'u');"_s.arg(nr));
    c.Exec(u"INSERT INTO Gestaltung (Nr, TiBiZeichner) VALUES (%1, 'z');"_s.arg(nr));
    c.Exec(u"INSERT INTO Status VALUES (%1, 2, '0000001');"_s.arg(nr));
    c.Exec(u"INSERT INTO Links VALUES (%1, 1, 5, 'siehe', 'Valdorin Heftromane');"_s.arg(nr));
}

} // namespace

class TestSqlWriters : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void statementsAreExact()
    {
        TempCollection c;
        // A typed "%5" stays text: the values are put in in one pass.
        c.session.Entry = {12, u"O''Brian"_s, u"Titel %5"_s, 2, u"IV"_s, true, u""_s};
        BuildInsertEntrySql(c.session);
        QCOMPARE(c.session.CurrentSql, u"INSERT INTO HEFTLIST (Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung) "
                                       "VALUES (12, 'O''Brian', 'Titel %5', 2, 'IV', 255, '');"_s);
        c.session.Entry.GL = false;
        BuildUpdateEntrySql(c.session);
        QCOMPARE(c.session.CurrentSql, u"UPDATE HEFTLIST SET Nr=12, Autor='O''Brian', Titel='Titel %5', Zyklus='IV', "
                                       "Auflage=2, GL=0, Bemerkung='' WHERE Nr=12;"_s);
        c.session.Entry.GL = true;
        QCOMPARE(InsertEntry(c.session), 0);
        QCOMPARE(c.Value(u"SELECT Autor FROM HEFTLIST WHERE Nr=12;"_s).toString(), u"O'Brian"_s);
    }

    void overwriteQuestion_data()
    {
        QTest::addColumn<bool>("editMode");
        QTest::addColumn<int>("answer");
        QTest::addColumn<int>("result");
        QTest::newRow("new entry, no") << false << int(Answer::No) << 4711;
        QTest::newRow("new entry, yes") << false << int(Answer::Yes) << 3022;
        QTest::newRow("renumber, no") << true << int(Answer::No) << 4711;
        QTest::newRow("renumber, yes") << true << int(Answer::Yes) << 3022;
    }
    void overwriteQuestion()
    {
        QFETCH(bool, editMode);
        QFETCH(int, answer);
        QFETCH(int, result);
        TempCollection c;
        c.Add({{3, u"A"_s, u"Drei"_s}, {7, u"B"_s, u"Sieben"_s}});
        AddDependents(c, 7);
        QList<int> removedRows;
        c.session.RemoveEntryRows = [&](int nr) { removedRows << nr; };
        c.session.EditMode = editMode;
        c.session.OldNr = 3;
        c.session.Entry = {7, u"A"_s, u"Drei"_s, 0, u"I"_s, false, u""_s};
        c.prompter.answers = {Answer(answer)};

        QCOMPARE(InsertEntry(c.session), result);
        QCOMPARE(c.prompter.asked.size(), 1);
        const Message& asked = c.prompter.asked[0];
        QCOMPARE(asked.title, u"Vorhandenen Eintrag überschreiben"_s);
        QCOMPARE(asked.text, u"Der Eintrag Nummer 7:\n\n'Sieben'\n\nist bereits in der Datenbank vorhanden.\n"
                             "Möchtest Du den Datensatz ändern?"_s);

        const bool agreed = result == 3022;
        // Yes: the overwritten entry loses its details and dependents.
        for (const char16_t* table : {u"Details", u"Gestaltung", u"Status", u"Links"})
            QCOMPARE(Count(c, QString::fromUtf16(table), 7), agreed ? 0 : 1);
        QCOMPARE(Count(c, u"HEFTLIST"_s, 3), agreed && editMode ? 0 : 1);
        QCOMPARE(removedRows, agreed ? QList<int>{editMode ? 3 : 7} : QList<int>());
    }

    void batchWindowsKeepQuiet_data()
    {
        QTest::addColumn<QString>("caption");
        QTest::addColumn<bool>("quiet");
        QTest::newRow("import") << u"Daten Import"_s << true;
        QTest::newRow("import with more") << u"Daten Import ..."_s << false;
    }
    void batchWindowsKeepQuiet()
    {
        QFETCH(QString, caption);
        QFETCH(bool, quiet);
        TempCollection c;
        c.Add({{7, u"B"_s, u"Sieben"_s}});
        c.session.ActiveCaption = [&] { return caption; };

        c.session.Entry = {7, u"A"_s, u"T"_s, 0, u"I"_s, false, u""_s};
        QCOMPARE(InsertEntry(c.session), quiet ? 3022 : 4711);
        QCOMPARE(c.prompter.asked.size(), quiet ? 0 : 1);
        // A duplicate key is not logged even when quiet.
        QVERIFY(!LogText(c).contains(u"[Fehler 3022]"_s));

        c.prompter.asked.clear();
        c.session.Entry = {8, u""_s, u"T"_s, 0, u"I"_s, false, u""_s};
        QCOMPARE(InsertEntry(c.session), 3315);
        QCOMPARE(c.prompter.asked.size(), quiet ? 0 : 1);
        if (!quiet)
            QCOMPARE(c.prompter.asked[0].title + u'|' + c.prompter.asked[0].text,
                     u"Hinweis auf ein DB Problem|Das Feld 'Autor'\rmuß einen Text enthalten!"_s);
        QCOMPARE(LogText(c).contains(u"[Fehler 3315]"_s), quiet);
    }

    void errorsAreLoggedWithTheStatement()
    {
        TempCollection c;
        c.session.CurrentSql = u"UPDATE HEFTLIST SET WHERE Nr=1;"_s;
        QCOMPARE(ExecuteSql(c.session), 3144);
        QVERIFY(LogText(c).contains(u"UPDATE HEFTLIST SET WHERE Nr=1;\r\n[Fehler 3144]\r\nSyntax error in UPDATE "
                                    "statement.\r\nUPDATE HEFTLIST SET WHERE Nr=1;\r\n"_s));
        QVERIFY(c.prompter.asked.isEmpty());
    }

    void nrRange()
    {
        TempCollection c;
        c.Add({{4, u"A"_s, u"T"_s}, {40, u"A"_s, u"U"_s}, {17, u"A"_s, u"V"_s}});
        int lowest = 0, highest = 0;
        GetNrRange(c.session, u";"_s, lowest, highest);
        QCOMPARE(lowest, 4);
        QCOMPARE(highest, 40);
        GetNrRange(c.session, u"WHERE Titel<>'U';"_s, lowest, highest);
        QCOMPARE(highest, 17);
    }

    void upgradeAddsMissingTablesOnly()
    {
        TempCollection c;
        c.Exec(u"DROP TABLE Status;"_s);
        UpgradeSchema(c.session);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM sqlite_master WHERE name IN ('Status', 'INS1', 'INS2');"_s).toInt(),
                 3);
        c.Add({{1, u"A"_s, u"T"_s}});
        AddDependents(c, 1);
        // Running it again on a complete file changes and shows nothing.
        UpgradeSchema(c.session);
        for (const char16_t* table : {u"Gestaltung", u"Status", u"Links"})
            QCOMPARE(Count(c, QString::fromUtf16(table), 1), 1);
        QVERIFY(c.prompter.asked.isEmpty());
        QVERIFY(!QFileInfo::exists(c.session.log.Path()));
    }
};

HEFT_TEST(TestSqlWriters)
#include "tst_sqlwriters.moc"
