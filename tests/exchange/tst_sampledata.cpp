#include "testmain.h"

#include "exchange/datfile.h"
#include "exchange/datreader.h"

#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

// The sample collection is read by the same reader at build time; every line
// of it must be one the reader takes, or the shipped files would lack rows.
class TestSampleData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyLineIsGood_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<DatKind>("expected");
        QTest::addColumn<QString>("listFile");
        QTest::newRow("Heftromane") << u"Heftromane.dat"_s << u"Heftromane"_s << DatKind::List << QString();
        QTest::newRow("Heftromane details") << u"Heftromane_Details.dat"_s << u"Heftromane"_s << DatKind::Details
                                            << u"Heftromane.dat"_s;
        QTest::newRow("Taschenbücher") << u"Taschenbuecher.dat"_s << u"Taschenbücher"_s << DatKind::List << QString();
        QTest::newRow("Taschenbücher details") << u"Taschenbuecher_Details.dat"_s << u"Taschenbücher"_s
                                               << DatKind::Details << u"Taschenbuecher.dat"_s;
        QTest::newRow("collector") << u"Sammlung.dat"_s << u"Heftromane"_s << DatKind::List << u"Heftromane.dat"_s;
        QTest::newRow("collector details") << u"Sammlung_Details.dat"_s << u"Heftromane"_s << DatKind::Details
                                           << u"Heftromane.dat"_s;
        QTest::newRow("cycles") << u"Valdorin-Zyklus.dat"_s << u"Heftromane"_s << DatKind::Cycle << QString();
    }
    void everyLineIsGood()
    {
        QFETCH(QString, file);
        QFETCH(QString, kind);
        QFETCH(DatKind, expected);
        QFETCH(QString, listFile);
        const QStringList numbers = FirstFields(file, kind, expected);
        QVERIFY(!numbers.isEmpty());
        QCOMPARE(QSet<QString>(numbers.begin(), numbers.end()).size(), numbers.size());
        if (!listFile.isEmpty()) {
            const QStringList list = FirstFields(listFile, kind, DatKind::List);
            const QSet<QString> known(list.begin(), list.end());
            for (const QString& nr : numbers)
                QVERIFY2(known.contains(nr), qPrintable(nr));
        }
    }

private:
    // The first field of every record, after checking that the reader takes it.
    static QStringList FirstFields(const QString& file, const QString& kind, DatKind expected)
    {
        DatInputFile input;
        if (!input.Open(QStringLiteral(HEFTARIUM_DATA_SOURCES) + u"/valdorin/"_s + file))
            return {};
        if (KindOfHeader(input.ReadLine(), u"Valdorin"_s, kind) != expected)
            return {};
        ListReader list;
        CycleReader cycle;
        DetailsReader details;
        QStringList first;
        while (!input.AtEnd()) {
            const QString line = input.ReadLine();
            bool good = false;
            switch (expected) {
            case DatKind::List: {
                const ListRecord& r = list.Read(line);
                good = r.IsGood();
                first << r.Nr;
                break;
            }
            case DatKind::Cycle: {
                const CycleRecord& r = cycle.Read(line);
                good = r.IsGood();
                first << r.Zyklus;
                break;
            }
            default: {
                const DetailsRecord& r = details.Read(line);
                good = r.IsGood();
                first << r.Nr;
                break;
            }
            }
            if (!good)
                return {};
        }
        return first;
    }
};

HEFT_TEST(TestSampleData)
#include "tst_sampledata.moc"
