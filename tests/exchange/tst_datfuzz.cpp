#include "testmain.h"

#include "exchange/datreader.h"

#include "core/roman.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

// Damaged and random lines must neither crash nor hang a reader, and the
// limits hold whatever comes in.
class TestDatFuzz : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomAndMutatedLines()
    {
        QRandomGenerator random(20240317);
        const QStringList seeds = {
            u"\"1\";\"Hanno Velden\";\"Die Festung am Nebelmeer\";\"2\";\"IV\";\"Ja\";\"Ecke geknickt\";"_s,
            u"\"XII\";\"801\";\"850\";\"-1200\";\"-1150\";\"Die Nebelkriege\";\"Aufbruch\";"_s,
            detailsSeed(),
        };
        const QString alphabet = u"\"\";;;  aXvI1ß€-"_s;
        ListReader list;
        CycleReader cycle;
        DetailsReader details;
        for (int round = 0; round < 12000; ++round) {
            QString line = seeds[random.bounded(seeds.size())];
            if (round % 4 == 0) {
                line.clear();
                for (int i = random.bounded(120); i > 0; --i)
                    line += alphabet[random.bounded(alphabet.size())];
            } else {
                for (int edits = 1 + random.bounded(6); edits > 0; --edits)
                    Mutate(line, random, alphabet);
            }
            const ListRecord& l = list.Read(line);
            QVERIFY(l.Autor.size() <= 25 && l.Titel.size() <= 50 && l.Bemerkung.size() <= 64);
            QVERIFY(l.Zyklus == u"- - -"_s || (l.Zyklus.size() <= 8 && IsRomanText(l.Zyklus)));
            QVERIFY(l.AuflageNumber >= 0 && l.AuflageNumber <= 5);
            const CycleRecord& c = cycle.Read(line);
            QVERIFY(c.Zyklus.size() <= 8 && c.NrVon.size() <= 5 && c.Bezeichnung.size() <= 50);
            const DetailsRecord& d = details.Read(line);
            QVERIFY(d.LinksRead >= 0 && d.LinksRead <= MaxLinks);
            QVERIFY(d.Inhalt.size() <= 255 && d.Untertitel.size() <= 128);
            for (const QString& value : d.Status)
                QVERIFY(value.size() <= 128);
        }
    }

private:
    static void Mutate(QString& line, QRandomGenerator& random, const QString& alphabet)
    {
        if (line.isEmpty()) {
            line = alphabet;
            return;
        }
        const qsizetype at = random.bounded(static_cast<int>(line.size()));
        switch (random.bounded(4)) {
        case 0:
            line.remove(at, 1 + random.bounded(8));
            break;
        case 1:
            line.insert(at, alphabet[random.bounded(alphabet.size())]);
            break;
        case 2:
            line.insert(at, line.mid(random.bounded(static_cast<int>(line.size())), 12));
            break;
        default:
            line.truncate(at);
            break;
        }
    }

    static QString detailsSeed()
    {
        DetailsRecord r;
        r.Nr = u"7"_s;
        r.Ersterscheinung = u"1961-10-20"_s;
        r.Persons[0] = u"Tarvin"_s;
        r.Inhalt = u"Kurz."_s;
        r.Status[0] = u"2024-03-17 um 14:22:05"_s;
        r.Links[0] = {8, u"Fortsetzung in Band 8"_s, u"Valdorin Heftromane"_s};
        r.LinksRead = 1;
        return DetailsLine(r);
    }
};

HEFT_TEST(TestDatFuzz)
#include "tst_datfuzz.moc"
