#include "testmain.h"

#include "core/roman.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestRoman : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void romanToNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");
        QTest::newRow("empty") << QString() << 0;
        QTest::newRow("year") << u"MCMXC"_s << 1990;
        QTest::newRow("subtractive") << u"XLIV"_s << 44;
        QTest::newRow("stops at a non-digit") << u"XIIabc"_s << 12;
        QTest::newRow("previous stays after subtracting") << u"IXC"_s << 107;
    }
    void romanToNumber()
    {
        QFETCH(QString, text);
        QFETCH(int, expected);
        QCOMPARE(RomanToNumber(text), expected);
    }

    // Every cycle number the series could reach survives writing and reading;
    // the number given is used up on the way.
    void numberToRoman()
    {
        int year = 1990;
        QCOMPARE(NumberToRoman(year), u"MCMXC"_s);
        QCOMPARE(year, 0);
        QCOMPARE(NumberToRoman(4001), u"MMMMI"_s);
        for (int n = 1; n <= 3999; ++n)
            QCOMPARE(RomanToNumber(NumberToRoman(int(n))), n);
    }

    void digits_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("digit");
        QTest::addColumn<bool>("romanText");
        QTest::addColumn<QString>("value");
        QTest::newRow("empty") << QString() << false << true << QString();
        QTest::newRow("upper") << u"D"_s << true << true << u"500"_s;
        QTest::newRow("two digits") << u"XI"_s << false << true << QString();
        QTest::newRow("not roman") << u"A"_s << false << false << QString();
        QTest::newRow("no cycle") << u"- - -"_s << false << false << QString();
    }
    void digits()
    {
        QFETCH(QString, text);
        QFETCH(bool, digit);
        QFETCH(bool, romanText);
        QFETCH(QString, value);
        QCOMPARE(IsRomanDigit(text), digit);
        QCOMPARE(IsRomanText(text), romanText);
        QCOMPARE(RomanDigitValue(text), value);
    }
};

HEFT_TEST(TestRoman)
#include "tst_roman.moc"
