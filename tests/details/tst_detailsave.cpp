#include "testmain.h"
#include "testsupport.h"

#include "details/attributecatalog.h"
#include "details/detailsave.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

DetailValues SampleValues()
{
    DetailValues values;
    values.Nr = 7;
    values.Details = {QDate(2009, 3, 1), u" Die Rückkehr der O'Varra "_s,
                      {u"Kapitän Lorn"_s, u"D'Arcy Vell"_s, {}, {}, {}, {}, {}, {}, u"Mira 100%1"_s},
                      u"Lorn trifft D'Arcy."_s};
    values.Gestaltung = {u"Jo O'Kell"_s, u" Rana Till "_s, true, u"Kreuzer 'Stella'"_s, u"Ben Asto"_s};
    values.Status = QStringList(StatusCount);
    values.Status[0] = u"2009-03-01 um 10:00:00"_s;
    values.Status[4] = u"00003.5"_s;
    values.Status[18] = u"Gut, aber 'zäh'"_s;
    values.Links = {{8, u"Teil 2 von 2"_s, u"Valdorin Heftromane"_s}, {3, u"Vorgeschichte 'Aufbruch'"_s, u"Valdorin Taschenbücher"_s}};
    return values;
}

} // namespace

class TestDetailSave : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void statementsOfOneEntry()
    {
        const QList<SaveStep> steps = DetailSaveSteps(SampleValues());
        QCOMPARE(steps.size(), 2 + 1 + StatusCount + 1 + 2);

        QCOMPARE(steps[0].Sql,
                 u"INSERT INTO Details (Nr, Ersterscheinung, Untertitel, Person1, Person2, Person3, Person4, Person5, "
                 "Person6, Person7, Person8, Person9, Inhalt) VALUES (7, '01.03.2009', 'Die Rückkehr der O''Varra', "
                 "'Kapitän Lorn', 'D''Arcy Vell', '', '', '', '', '', '', 'Mira 100%1', 'Lorn trifft D''Arcy.');"_s);
        QCOMPARE(steps[0].OnError,
                 u"UPDATE Details SET Ersterscheinung='01.03.2009', Untertitel='Die Rückkehr der O''Varra', "
                 "Person1='Kapitän Lorn', Person2='D''Arcy Vell', Person3='', Person4='', Person5='', Person6='', "
                 "Person7='', Person8='', Person9='Mira 100%1', Inhalt='Lorn trifft D''Arcy.' WHERE Nr=7;"_s);
        QCOMPARE(steps[1].Sql, u"INSERT INTO Gestaltung (Nr, TiBiZeichner, IlluZeichner, RZ, RiZeObjekt, RizeZeichner) "
                               "VALUES (7, 'Jo O''Kell', 'Rana Till', 255, 'Kreuzer ''Stella''', 'Ben Asto');"_s);
        QCOMPARE(steps[1].OnError, u"UPDATE Gestaltung SET TiBiZeichner='Jo O''Kell', IlluZeichner='Rana Till', RZ=255, "
                                   "RiZeObjekt='Kreuzer ''Stella''', RiZeZeichner='Ben Asto' WHERE Nr=7;"_s);
        QCOMPARE(steps[2].Sql, u"DELETE FROM Status WHERE Nr=7"_s);
        QCOMPARE(steps[21].Sql, u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (7, 19, 'Gut, aber ''zäh''');"_s);
        QCOMPARE(steps[22].Sql, u"DELETE FROM Links WHERE Nr=7"_s);
        QCOMPARE(steps[24].Sql, u"INSERT INTO Links (Nr, ENum, LinkNum, LinkText, LinkSerie) "
                                "VALUES (7, 2, 3, 'Vorgeschichte ''Aufbruch''', 'Valdorin Taschenbücher');"_s);
    }

    // The first save of an entry inserts its rows; the next one, with a link
    // less and another price, replaces them.
    void saveRewritesTables()
    {
        TempCollection collection;
        // The session's ExecuteSql is quiet under the detail window's caption.
        collection.session.ActiveCaption = [] { return u"Detailinfo [#7]"_s; };
        // Another entry's rows stay untouched.
        collection.Exec(u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (8, 3, 'fremd');"_s);

        SaveDetails(collection.session, SampleValues());
        DetailValues again = SampleValues();
        again.Status[4] = u"0000004"_s;
        again.Links.removeLast();
        SaveDetails(collection.session, again);

        const auto text = [&](const QString& sql) { return collection.Value(sql).toString(); };
        QCOMPARE(text(u"SELECT COUNT(*) || '|' || Ersterscheinung || '|' || Untertitel || '|' || Person2 || '|' || "
                      "Person9 || '|' || Inhalt FROM Details WHERE Nr=7;"_s),
                 u"1|01.03.2009|Die Rückkehr der O'Varra|D'Arcy Vell|Mira 100%1|Lorn trifft D'Arcy."_s);
        QCOMPARE(text(u"SELECT TiBiZeichner || '|' || IlluZeichner || '|' || RZ || '|' || RiZeObjekt || '|' || "
                      "RiZeZeichner FROM Gestaltung WHERE Nr=7;"_s),
                 u"Jo O'Kell|Rana Till|-1|Kreuzer 'Stella'|Ben Asto"_s);
        QCOMPARE(text(u"SELECT COUNT(*) FROM Status WHERE Nr=7;"_s).toInt(), StatusCount);
        QCOMPARE(text(u"SELECT GROUP_CONCAT(StatusWert, '|') FROM (SELECT StatusWert FROM Status WHERE Nr=7 AND "
                      "ENum IN (5, 19) ORDER BY ENum);"_s),
                 u"0000004|Gut, aber 'zäh'"_s);
        const QString stamp = text(u"SELECT GROUP_CONCAT(StatusWert) FROM Status WHERE Nr=7 AND ENum=1;"_s);
        QVERIFY2(QRegularExpression(u"^\\d{4}-\\d\\d-\\d\\d um \\d\\d:\\d\\d:\\d\\d$"_s).match(stamp).hasMatch() &&
                     stamp != u"2009-03-01 um 10:00:00"_s,
                 qPrintable(stamp));
        QCOMPARE(text(u"SELECT GROUP_CONCAT(Link, '|') FROM (SELECT ENum || ':' || LinkNum || ':' || LinkText AS Link "
                      "FROM Links WHERE Nr=7 ORDER BY ENum);"_s),
                 u"1:8:Teil 2 von 2"_s);
        QCOMPARE(text(u"SELECT GROUP_CONCAT(StatusWert) FROM Status WHERE Nr=8;"_s), u"fremd"_s);
        QVERIFY(collection.prompter.asked.isEmpty());
    }

    // What the user types into an attribute, as the status list then shows
    // it and as the file keeps it.
    void validateAndStore_data()
    {
        QTest::addColumn<int>("enumber");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("refused");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("stored");
        QTest::newRow("pasted comma") << 5 << u"3,50"_s << false << u"3.5"_s << u"00003.5"_s;
        QTest::newRow("word as number") << 5 << u"drei"_s << true << QString() << QString();
        QTest::newRow("empty stays empty") << 6 << u"   "_s << false << u""_s << u""_s;
        QTest::newRow("no date is today") << 18 << u"letzte Woche"_s << false << u"2024-05-17"_s << u"2024-05-17"_s;
        QTest::newRow("1900 raised") << 18 << u"15.06.1900"_s << false << u"1901-01-01"_s << u"1901-01-01"_s;
        QTest::newRow("dates elsewhere are text") << 16 << u"1.1.1800"_s << false << u"1.1.1800"_s << u"1.1.1800"_s;
        QTest::newRow("text trimmed, apostrophe single")
            << 4 << u"  Hannes' Laden "_s << false << u"Hannes' Laden"_s << u"Hannes' Laden"_s;
        QTest::newRow("text cut to 128") << 19 << QString(200, u'x') << false << QString(128, u'x') << QString(128, u'x');
    }
    void validateAndStore()
    {
        QFETCH(int, enumber);
        QFETCH(QString, text);
        QFETCH(bool, refused);
        const StatusCheck check = ValidateStatusValue(enumber, text, QDate(2024, 5, 17));
        QCOMPARE(check.refused, refused);
        if (refused)
            return;
        QTEST(check.value, "shown");
        QTEST(StoredStatusValue(enumber, check.value), "stored");
    }
};

HEFT_TEST(TestDetailSave)
#include "tst_detailsave.moc"
