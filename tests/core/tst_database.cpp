// The storage engine must answer as the program's SQL texts expect: Jet's
// wildcards, XOR, dates, case-blind German text order, yes/no values, error
// numbers, one statement per call, exclusive use; and the statement shapes
// of the kept statements, which must answer as the text itself would.

#include "testmain.h"
#include "testsupport.h"

#include "core/jetdialect.h"
#include "core/jeterrors.h"
#include "core/jetfunctions.h"
#include "core/sqlshape.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

class TestDatabase : public QObject {
    Q_OBJECT

    static QStringList Column(Database& db, const QString& sql)
    {
        DbError error;
        Query query = db.Select(sql, &error);
        if (error)
            qFatal("%s", qPrintable(error.description));
        QStringList values;
        while (query.Next())
            values << (query.IsNull(0) ? u"<NULL>"_s : query.Text(0));
        return values;
    }

private Q_SLOTS:
    void jetLike_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("matches");
        QTest::newRow("case-blind umlaut") << u"*ÄRGER*"_s << u"Großer Ärger"_s << true;
        QTest::newRow("question one char") << u"T?tel"_s << u"Titel"_s << true;
        QTest::newRow("hash digit") << u"Band ##"_s << u"Band 42"_s << true;
        QTest::newRow("hash no letter") << u"Band ##"_s << u"Band 4a"_s << false;
        QTest::newRow("negated list") << u"[!a-c]x"_s << u"dx"_s << true;
        QTest::newRow("percent is plain") << u"50%"_s << u"50 Prozent"_s << false;
        QTest::newRow("literal star in brackets") << u"a[*]c"_s << u"a*c"_s << true;
        QTest::newRow("backtracking") << u"*a*b*c"_s << u"xaxbxbxc"_s << true;
        QTest::newRow("whole text") << u"abc"_s << u"abcd"_s << false;
        QTest::newRow("question needs a char") << u"T?tel"_s << u"Ttel"_s << false;
        QTest::newRow("range low end") << u"[b-d]x"_s << u"bx"_s << true;
        QTest::newRow("range high end") << u"[b-d]x"_s << u"DX"_s << true;
        QTest::newRow("below the range") << u"[b-d]x"_s << u"ax"_s << false;
        QTest::newRow("above the range") << u"[b-d]x"_s << u"ex"_s << false;
        QTest::newRow("negated range end") << u"[!a-c]x"_s << u"cx"_s << false;
        QTest::newRow("list and digit") << u"[xyz]#"_s << u"Y7"_s << true;
        QTest::newRow("lone exclamation mark") << u"[!]"_s << u"!"_s << true;
        QTest::newRow("unclosed bracket is plain") << u"a[b"_s << u"a[b"_s << true;
        QTest::newRow("unclosed bracket no list") << u"a[b"_s << u"ab"_s << false;
        QTest::newRow("nothing typed") << u"**"_s << QString() << true;
    }
    void jetLike()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, text);
        QTEST(JetLike(pattern, text), "matches");
    }

    // Jet binds NOT, AND, OR, then XOR; a NULL operand makes XOR NULL.
    void xorPrecedenceAndNull_data()
    {
        QTest::addColumn<QString>("where");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("and or") << u"Nr=1 AND Autor='A' XOR Nr=2 OR Nr=3"_s
                                << QStringList{u"1"_s, u"2"_s, u"3"_s};
        QTest::newRow("or binds tighter") << u"Nr>=1 XOR Nr=2 OR Nr=3"_s << QStringList{u"1"_s, u"4"_s};
        // Bemerkung is NULL on rows 3 and 4: the comparison is NULL, so is XOR.
        QTest::newRow("null operand") << u"Bemerkung='x' XOR Nr>0"_s << QStringList{u"2"_s};
        QTest::newRow("string with xor word") << u"Titel='a XOR b' XOR Nr=4"_s
                                              << QStringList{u"3"_s, u"4"_s};
        QTest::newRow("like on null") << u"Bemerkung LIKE '*'"_s << QStringList{u"1"_s, u"2"_s};
    }
    void xorPrecedenceAndNull()
    {
        QFETCH(QString, where);
        QFETCH(QStringList, found);
        TempCollection c;
        c.Add({{1, u"A"_s, u"t"_s, 0, u"- - -"_s, false, u"x"_s},
               {2, u"B"_s, u"t"_s, 0, u"- - -"_s, false, u"y"_s},
               {3, u"A"_s, u"a XOR b"_s},
               {4, u"B"_s, u"t"_s}});
        QCOMPARE(Column(*c.session.CollectionDb, u"SELECT Nr FROM HEFTLIST WHERE "_s + where + u" ORDER BY Nr;"_s),
                 found);
    }

    void jetDateValue_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("days");
        QTest::newRow("german") << u"01.01.1900"_s << qint64(2);
        QTest::newRow("stamp") << u"1900-01-01 um 10:00:00"_s << qint64(2);
        QTest::newRow("two digits 20th") << u"01.01.70"_s << QDate(1899, 12, 30).daysTo(QDate(1970, 1, 1));
        QTest::newRow("two digits 21st") << u"01.01.29"_s << QDate(1899, 12, 30).daysTo(QDate(2029, 1, 1));
        QTest::newRow("month name") << u"2006-Oktober-05"_s << QDate(1899, 12, 30).daysTo(QDate(2006, 10, 5));
        QTest::newRow("no date") << u"demnächst"_s << qint64(-1);
        QTest::newRow("Jänner") << u"2006-Jänner-05"_s << QDate(1899, 12, 30).daysTo(QDate(2006, 1, 5));
        QTest::newRow("no month") << u"2006-Nebel-05"_s << qint64(-1);
    }
    void jetDateValue()
    {
        QFETCH(QString, text);
        QTEST(JetDateValue(text).value_or(-1), "days");
    }

    void germanCaseBlindOrder()
    {
        TempCollection c;
        c.Add({{1, u"Zander"_s, u"t"_s}, {2, u"ärger"_s, u"t"_s}, {3, u"Ahorn"_s, u"t"_s},
               {4, u"AHORN"_s, u"t"_s}, {5, u"Baum"_s, u"t"_s}, {6, u"Öde"_s, u"t"_s}, {7, u"ode"_s, u"t"_s}});
        Database& db = *c.session.CollectionDb;
        QCOMPARE(Column(db, u"SELECT Nr FROM HEFTLIST WHERE Autor='ahorn' ORDER BY Nr;"_s),
                 (QStringList{u"3"_s, u"4"_s}));
        const QStringList ordered = Column(db, u"SELECT Autor FROM HEFTLIST WHERE Nr<>4 ORDER BY Autor, Nr;"_s);
        QCOMPARE(ordered, (QStringList{u"Ahorn"_s, u"ärger"_s, u"Baum"_s, u"ode"_s, u"Öde"_s, u"Zander"_s}));
    }

    void yesNoColumnsReadMinusOne()
    {
        TempCollection c;
        c.Exec(u"INSERT INTO HEFTLIST (Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung) "
               "VALUES (1, 'A', 'T', 0, 'I', 255, '');"_s);
        c.Exec(u"INSERT INTO HEFTLIST (Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung) "
               "VALUES (2, 'A', 'T', 0, 'I', 0, '');"_s);
        c.Exec(u"INSERT INTO Gestaltung (Nr, RZ) VALUES (1, 255);"_s);
        QCOMPARE(c.Value(u"SELECT GL FROM HEFTLIST WHERE Nr=1;"_s).toInt(), -1);
        QCOMPARE(c.Value(u"SELECT Nr FROM Gestaltung WHERE RZ=-1;"_s).toInt(), 1);
        c.Exec(u"UPDATE HEFTLIST SET GL=255 WHERE Nr=2;"_s);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST WHERE GL=-1;"_s).toInt(), 2);
    }

    void errorNumbers_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("description");
        QTest::newRow("duplicate") << u"INSERT INTO HEFTLIST VALUES (1, 'B', 'U', 0, 'I', 0, '');"_s << 3022
                                   << u"The changes you requested to the table were not successful*"_s;
        QTest::newRow("empty author") << u"UPDATE HEFTLIST SET Autor='' WHERE Nr=1;"_s << 3315
                                      << u"Field 'HEFTLIST.Autor' cannot be a zero-length string."_s;
        QTest::newRow("too long") << u"INSERT INTO Status VALUES (1, 3, '%1');"_s.arg(QString(129, u'x')) << 3163
                                  << u"The field is too small to accept the amount of data you attempted to add.*"_s;
        QTest::newRow("text after end") << u"DELETE FROM HEFTLIST WHERE Nr=1; DELETE FROM Status;"_s << 3142
                                        << u"Characters found after end of SQL statement."_s;
        QTest::newRow("one trailing semicolon and blanks") << u"UPDATE Status SET ENum=2;  \r\n"_s << 0 << QString();
        QTest::newRow("two semicolons") << u"UPDATE Status SET ENum=2;;"_s << 3142 << u"Characters found*"_s;
        QTest::newRow("syntax") << u"SELECT FROM WHERE;"_s << 3075 << u"Syntax error (missing operator)*"_s;
        QTest::newRow("update syntax") << u"UPDATE HEFTLIST SET WHERE Nr=1;"_s << 3144
                                       << u"Syntax error in UPDATE statement."_s;
        QTest::newRow("byte overflow") << u"UPDATE HEFTLIST SET Auflage=256 WHERE Nr=1;"_s << 3349
                                       << u"Numeric field overflow."_s;
        QTest::newRow("table exists") << u"CREATE TABLE Status (Nr LONG);"_s << 3010
                                      << u"Table 'Status' already exists."_s;
        QTest::newRow("no table") << u"SELECT * FROM Fehlt;"_s << 3078 << u"*'Fehlt'*"_s;
        QTest::newRow("null yes/no") << u"UPDATE HEFTLIST SET GL=NULL;"_s << 3314 << u"*'HEFTLIST.GL'*"_s;
        QTest::newRow("stray apostrophe") << u"INSERT INTO Status VALUES (1, 4, 'Kim's');"_s << 3134
                                          << u"Syntax error in INSERT INTO statement."_s;
        QTest::newRow("no column") << u"UPDATE HEFTLIST SET Fehlt=1;"_s << 3061 << u"Too few parameters*"_s;
        QTest::newRow("index exists") << u"CREATE INDEX INS1 ON Status (Nr);"_s << 3375
                                      << u"An index named 'INS1' already exists."_s;
        QTest::newRow("mismatch") << u"SELECT Nr FROM HEFTLIST LIMIT 'x';"_s << 3464
                                  << u"Data type mismatch in criteria expression."_s;
        QTest::newRow("other engine error") << u"SELECT abs(1, 2);"_s << 3000 << u"wrong number of arg*"_s;
        QTest::newRow("no statement") << u" ;"_s << 3129 << u"Invalid SQL statement; expected 'DELETE'*"_s;
    }
    void errorNumbers()
    {
        QFETCH(QString, sql);
        QFETCH(int, number);
        QFETCH(QString, description);
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}});
        c.Exec(u"INSERT INTO Status VALUES (1, 2, '0000001');"_s);
        const DbError error = c.session.CollectionDb->Execute(sql);
        QCOMPARE(error.number, number);
        QVERIFY2(JetLike(description, error.description), qPrintable(error.description));
        QCOMPARE(c.Value(u"SELECT Autor || Titel FROM HEFTLIST WHERE Nr=1;"_s).toString(), u"AT"_s);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Status;"_s).toInt(), 1);
    }

    void openFailures()
    {
        TempCollection c;
        DbError error;
        QVERIFY(!Database::Open(c.Path(), &error));
        QCOMPARE(error.number, 3045);
        c.Close();
        QVERIFY(Database::Open(c.Path(), &error) != nullptr);
        QVERIFY(!Database::Open(c.dir.filePath(u"fehlt.mdb"_s), &error));
        QCOMPARE(error.number, 3024);
    }

    void shapes_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<QString>("shape"); // empty: none
        QTest::addColumn<QStringList>("values");

        QTest::newRow("insert") << u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (12, 3, 'O''Neill €');"_s
                                << u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (?, ?, ?);"_s
                                << QStringList{u"12"_s, u"3"_s, u"O'Neill €"_s};
        QTest::newRow("names with digits, negative and real numbers")
            << u"UPDATE Details SET Person1='a', Nr=-4.5 WHERE Nr=7;"_s
            << u"UPDATE Details SET Person1=?, Nr=-? WHERE Nr=?;"_s
            << QStringList{u"a"_s, u"4.5"_s, u"7"_s};
        QTest::newRow("select values after FROM")
            << u"SELECT * FROM Links WHERE Nr=5 AND Enum=1"_s << u"SELECT * FROM Links WHERE Nr=? AND Enum=?"_s
            << QStringList{u"5"_s, u"1"_s};
        QTest::newRow("nothing to take out") << u"SELECT MAX(Nr) FROM HEFTLIST ;"_s
                                             << u"SELECT MAX(Nr) FROM HEFTLIST ;"_s << QStringList();
        for (const QString& none :
             {u"SELECT 'x', Nr FROM HEFTLIST;"_s, u"SELECT Nr FROM HEFTLIST ORDER BY 1;"_s,
              u"CREATE TABLE T (A TEXT(5));"_s, u"SELECT * FROM H WHERE A=1 XOR B=2;"_s,
              u"SELECT * FROM H WHERE \"Nr\"=1;"_s, u"DELETE FROM H WHERE Nr=1e5;"_s,
              u"DELETE FROM H WHERE A='offen;"_s, u"DELETE FROM H WHERE Nr=1 -- x"_s, u"SAVEPOINT A"_s})
            QTest::newRow(qPrintable(none)) << none << QString() << QStringList();
    }

    void shapes()
    {
        QFETCH(QString, sql);
        QFETCH(QString, shape);
        const std::optional<SqlShape> found = ShapeOf(sql);
        QCOMPARE(found.has_value(), !shape.isEmpty());
        if (!found)
            return;
        QCOMPARE(found->text, shape);
        QStringList literals;
        for (const SqlLiteral& literal : found->literals)
            literals << literal.value;
        QTEST(literals, "values");
    }

    void keptStatements()
    {
        test::TempCollection c;
        Database& db = *c.session.CollectionDb;
        const QString insert = u"INSERT INTO HEFTLIST (Nr, Autor, Titel, Auflage, Zyklus, GL) VALUES (%1, '%2', 'T', 1, "
                               "'I', 255);"_s;
        QCOMPARE(db.Execute(insert.arg(1).arg(u"O'Neill"_s.replace(u"'"_s, u"''"_s))).number, 0);
        QCOMPARE(db.Execute(insert.arg(2).arg(u"B"_s)).number, 0);
        QCOMPARE(db.Execute(insert.arg(2).arg(u"C"_s)).number, JetDuplicateKey);
        QCOMPARE(db.Execute(insert.arg(3).arg(QString())).number, JetZeroLengthString);

        // The same shape while a query still reads it.
        const QString select = u"SELECT Autor, GL FROM HEFTLIST WHERE Nr>=%1"_s;
        Query outer = db.Select(select.arg(1));
        QVERIFY(outer.Next());
        Query inner = db.Select(select.arg(2));
        QVERIFY(inner.Next());
        QCOMPARE(inner.Text(0), u"B"_s);
        QCOMPARE(outer.Text(0), u"O'Neill"_s);
        QCOMPARE(outer.Int(1), -1);
        outer.Close();
        inner.Close();

        // A table that goes away fails at the open, as before it was kept.
        QCOMPARE(db.SelectValue(u"SELECT COUNT(*) FROM HEFTLIST WHERE Nr>1;"_s).toInt(), 1);
        QVERIFY(!db.Execute(u"DROP TABLE HEFTLIST;"_s));
        DbError error;
        QVERIFY(!db.Select(u"SELECT COUNT(*) FROM HEFTLIST WHERE Nr>1;"_s, &error).IsOpen());
        QCOMPARE(error.number, JetTableNotFound);
    }
};

HEFT_TEST(TestDatabase)
#include "tst_database.moc"
