// Statement shapes and the kept statements of the database: which texts get
// a shape, and that a kept statement answers as the text itself would.

#include "testmain.h"
#include "testsupport.h"

#include "core/jeterrors.h"
#include "core/sqlshape.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestSqlShape : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
        QFETCH(QStringList, values);
        const std::optional<SqlShape> found = ShapeOf(sql);
        QCOMPARE(found.has_value(), !shape.isEmpty());
        if (!found)
            return;
        QCOMPARE(found->text, shape);
        QStringList literals;
        for (const SqlLiteral& literal : found->literals)
            literals << literal.value;
        QCOMPARE(literals, values);
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

HEFT_TEST(TestSqlShape)
#include "tst_sqlshape.moc"
