// The editor's rules without its window: the checks and their order, and
// the statements exactly as written.

#include "testmain.h"

#include "cycles/cycleedit.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

CycleRow Row(const QStringList& f)
{
    return {f.value(0), f.value(1), f.value(2), f.value(3), f.value(4), f.value(5), f.value(6)};
}

QStringList Fields(const CycleRow& r)
{
    return {r.Zyklus, r.NrVon, r.NrBis, r.ZeitVon, r.ZeitBis, r.Bezeichnung, r.Zyklusbereich};
}

} // namespace

class TestCycleEdit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void checks_data()
    {
        QTest::addColumn<QStringList>("typed");
        QTest::addColumn<int>("refused"); // CycleBox
        QTest::addColumn<QStringList>("after");
        const QString keine = u"*** Keine ***"_s;
        QTest::newRow("all good") << QStringList{u"V"_s, u"10"_s, u"20"_s, u"-5"_s, u"7"_s, u"Titel"_s, u""_s}
                                  << int(CycleBox::None)
                                  << QStringList{u"V"_s, u"10"_s, u"20"_s, u"-5"_s, u"7"_s, u"Titel"_s, u""_s};
        // A blank title is replaced and the checks go on to the first stop.
        QTest::newRow("blank title, then empty from")
            << QStringList{u"V"_s, u""_s, u""_s, u""_s, u""_s, u"   "_s, u"G"_s} << int(CycleBox::NrVon)
            << QStringList{u"V"_s, u"0"_s, u""_s, u""_s, u""_s, keine, u"G"_s};
        // Compared as texts: 900 lies behind 1000.
        QTest::newRow("900 to 1000") << QStringList{u"V"_s, u"900"_s, u"1000"_s, u""_s, u""_s, u"T"_s, u""_s}
                                     << int(CycleBox::NrVon)
                                     << QStringList{u"V"_s, u"1000"_s, u"1000"_s, u""_s, u""_s, u"T"_s, u""_s};
        QTest::newRow("empty first year")
            << QStringList{u"V"_s, u"5"_s, u"6"_s, u""_s, u""_s, u"T"_s, u""_s} << int(CycleBox::ZeitVon)
            << QStringList{u"V"_s, u"5"_s, u"6"_s, u"0"_s, u""_s, u"T"_s, u""_s};
    }

    void checks()
    {
        QFETCH(QStringList, typed);
        QFETCH(int, refused);
        QFETCH(QStringList, after);
        CycleRow row = Row(typed);
        QCOMPARE(int(CheckCycleInput(row)), refused);
        QCOMPARE(Fields(row), after);
    }

    void statements()
    {
        const CycleRow row = Row({u"IX"_s, u"400"_s, u"449"_s, u"-12"_s, u"30"_s, u"Ka'Rell"_s, u""_s});
        QCOMPARE(InsertCycleSql(row), u"INSERT INTO ZyklusListe (Zyklus, NrVon, NrBis, ZeitVon, ZeitBis, Bezeichnung, "
                                      "Zyklusbereich) VALUES ('IX', 400, 449, -12, 30, 'Ka''Rell', '');"_s);
        QCOMPARE(UpdateCycleSql(row), u"UPDATE ZyklusListe SET NrVon=400, NrBis=449, ZeitVon=-12, ZeitBis=30, "
                                      "Bezeichnung='Ka''Rell', Zyklusbereich='' WHERE Zyklus='IX';"_s);
    }
};

HEFT_TEST(TestCycleEdit)
#include "tst_cycleedit.moc"
