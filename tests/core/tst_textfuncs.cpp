#include "testmain.h"

#include "core/roman.h"
#include "core/textfuncs.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestTextFuncs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void val_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expected");
        QTest::newRow("leading blanks, tab, line feed") << u" \t\n42"_s << 42.0;
        QTest::newRow("blanks inside") << u"1 615 198th Street"_s << 1615198.0;
        QTest::newRow("leading CR is not skipped") << u"\r5"_s << 0.0;
        QTest::newRow("sign") << u"-17"_s << -17.0;
        QTest::newRow("comma stops") << u"240,1"_s << 240.0;
        QTest::newRow("exponent D, negative") << u"25d-1"_s << 2.5;
        QTest::newRow("hex 16-bit wraps") << u"&HFFFF"_s << -1.0;
        QTest::newRow("octal") << u"&O17"_s << 15.0;
    }
    void val()
    {
        QFETCH(QString, text);
        QTEST(Val(text), "expected");
    }

    void isNumeric_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        QTest::newRow("empty") << QString() << false;
        QTest::newRow("trimmed") << u" 3.5 "_s << true;
        QTest::newRow("decimal comma") << u"3,5"_s << true;
        QTest::newRow("exponent") << u"1E3"_s << true;
        QTest::newRow("two separators") << u"1,5.3"_s << false;
        QTest::newRow("blank inside") << u"1 2"_s << false;
        QTest::newRow("dangling exponent") << u"5E"_s << false;
    }
    void isNumeric()
    {
        QFETCH(QString, text);
        QTEST(IsNumeric(text), "expected");
    }

    void arithmetic_data()
    {
        QTest::addColumn<double>("a");
        QTest::addColumn<double>("b");
        QTest::addColumn<qint64>("quotient");
        QTest::addColumn<qint64>("remainder");
        QTest::newRow("negative dividend") << -7.0 << 2.0 << qint64(-3) << qint64(-1);
        QTest::newRow("half rounds to even") << 2.5 << 1.5 << qint64(1) << qint64(0);
        QTest::newRow("divisor 0") << 5.0 << 0.4 << qint64(0) << qint64(0);
    }
    void arithmetic()
    {
        QFETCH(double, a);
        QFETCH(double, b);
        QTEST(IntDiv(a, b), "quotient");
        QTEST(Mod(a, b), "remainder");
    }

    void romanToNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("expected");
        QTest::newRow("stops at a non-digit") << u"XIIabc"_s << 12;
        QTest::newRow("previous stays after subtracting") << u"IXC"_s << 107;
    }
    void romanToNumber()
    {
        QFETCH(QString, text);
        QTEST(RomanToNumber(text), "expected");
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
        QTEST(IsRomanDigit(text), "digit");
        QTEST(IsRomanText(text), "romanText");
        QTEST(RomanDigitValue(text), "value");
    }
};

HEFT_TEST(TestTextFuncs)
#include "tst_textfuncs.moc"
