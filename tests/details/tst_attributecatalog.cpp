#include "testmain.h"

#include "details/attributecatalog.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestAttributeCatalog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void stored_data()
    {
        QTest::addColumn<int>("enumber");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("stored");
        QTest::newRow("empty price stays empty") << 5 << u"   "_s << u""_s;
        QTest::newRow("price with fraction") << 5 << u"3.5"_s << u"00003.5"_s;
        QTest::newRow("price with comma") << 6 << u"3,5"_s << u"00003.5"_s;
        QTest::newRow("too long loses left digits") << 6 << u"12345678"_s << u"2345678"_s;
        QTest::newRow("german lending date") << 18 << u"01.03.2009"_s << u"2009-03-01"_s;
        QTest::newRow("text trimmed, apostrophe single") << 4 << u"  Hannes' Laden "_s << u"Hannes' Laden"_s;
        QTest::newRow("text cut to 128") << 19 << QString(200, u'x') << QString(128, u'x');
    }
    void stored()
    {
        QFETCH(int, enumber);
        QFETCH(QString, shown);
        QFETCH(QString, stored);
        QCOMPARE(StoredStatusValue(enumber, shown), stored);
    }

    // The tests run with the German locale: a number still shows a point.
    void display_data()
    {
        QTest::addColumn<int>("enumber");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("shown");
        QTest::newRow("padded fraction") << 5 << u"00003.5"_s << u"3.5"_s;
        QTest::newRow("stored comma") << 6 << u"0003,50"_s << u"3.5"_s;
        QTest::newRow("trailing text ignored") << 10 << u"0000096 S."_s << u"96"_s;
        QTest::newRow("empty number") << 6 << u""_s << u""_s;
        QTest::newRow("text attribute as stored") << 4 << u"0000120"_s << u"0000120"_s;
    }
    void display()
    {
        QFETCH(int, enumber);
        QFETCH(QString, stored);
        QFETCH(QString, shown);
        QCOMPARE(DisplayStatusValue(enumber, stored), shown);
    }

    void validate_data()
    {
        QTest::addColumn<int>("enumber");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("refused");
        QTest::addColumn<QString>("value");
        QTest::newRow("pasted comma") << 5 << u"3,50"_s << false << u"3.5"_s;
        QTest::newRow("leading zeros") << 2 << u"007"_s << false << u"7"_s;
        QTest::newRow("empty number") << 5 << u"  "_s << false << u""_s;
        QTest::newRow("word as number") << 5 << u"drei"_s << true << QString();
        QTest::newRow("no date is today") << 18 << u"letzte Woche"_s << false << u"2024-05-17"_s;
        QTest::newRow("impossible date is today") << 18 << u"31.02.2010"_s << false << u"2024-05-17"_s;
        QTest::newRow("two-digit year") << 18 << u"3.4.11"_s << false << u"2011-04-03"_s;
        QTest::newRow("1900 raised") << 18 << u"15.06.1900"_s << false << u"1901-01-01"_s;
        QTest::newRow("empty date stays empty") << 18 << u""_s << false << u""_s;
        QTest::newRow("dates elsewhere are text") << 16 << u"1.1.1800"_s << false << u"1.1.1800"_s;
    }
    void validate()
    {
        QFETCH(int, enumber);
        QFETCH(QString, text);
        QFETCH(bool, refused);
        QFETCH(QString, value);
        const StatusCheck check = ValidateStatusValue(enumber, text, QDate(2024, 5, 17));
        QCOMPARE(check.refused, refused);
        if (!refused)
            QCOMPARE(check.value, value);
    }
};

HEFT_TEST(TestAttributeCatalog)
#include "tst_attributecatalog.moc"
