// A collection carried to another one through its exchange files: exported
// with details, imported into an empty collection, and every table compared;
// then changed files brought in over it with all columns.

#include "exportfixture.h"
#include "importfixture.h"
#include "testmain.h"

#include "exchange/exportrun.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

const QStringList Tables = {u"HEFTLIST"_s, u"Details"_s, u"Gestaltung"_s, u"Status"_s, u"Links"_s};

QString Dump(TempCollection& c, const QString& table) {
    const QString order = table == u"Status" || table == u"Links" ? u"Nr, ENum"_s : u"Nr"_s;
    return ImportFixture::Rows(*c.session.CollectionDb, u"SELECT * FROM %1 ORDER BY %2;"_s.arg(table, order));
}

// Without a place only the price is filled; with one every attribute holds
// a value of its own, so that each must come back under its number.
void AddStatus(TempCollection& c, int nr, const QString& lagerort) {
    for (int enumber = 1; enumber <= StatusCount; ++enumber) {
        QString value = enumber == 5 ? u"0012.50"_s : QString();
        if (!lagerort.isEmpty())
            value = enumber == 7 ? lagerort : u"Wert %1 für ''%2''"_s.arg(enumber).arg(nr);
        c.Exec(u"INSERT INTO Status VALUES (%1, %2, '%3');"_s.arg(nr).arg(enumber).arg(value));
    }
}

// Three entries: two with everything the files carry, one bare entry.
void FillSource(TempCollection& c) {
    c.Add({TestEntry(1, u"Jörg Weiß"_s, u"Größe & Glück für 5 €"_s, 2, u"IV"_s, true, u"Rücken geknickt"_s),
           TestEntry(2, u"Ada Quell"_s, u"Nebelhafen"_s, 0, u"- - -"_s, false, u""_s),
           TestEntry(3, u"Bo Kern"_s, u"O'Neills Rückkehr"_s, 5, u"XII"_s, true, u""_s)});
    c.Exec(u"INSERT INTO Details VALUES (1, '1961-09-08', 'Die Flut kommt', 'Tarvin Ask', 'Mela Orkun', '', "
           u"'', '', "
           "'', '', '', 'Öde Weiten', 'Tarvin erreicht Aldorath – endlich.');"_s);
    c.Exec(u"INSERT INTO Details VALUES (3, '1975-01-31', '', 'Bo', '', '', '', '', '', '', '', '', '');"_s);
    c.Exec(
        u"INSERT INTO Gestaltung VALUES (1, 'Lorenz Falk', 'Ines Marwald', -1, 'Kreuzer KASTOR', 'Bodo Lessner');"_s);
    c.Exec(u"INSERT INTO Gestaltung VALUES (3, '', '', 0, '', '');"_s);
    AddStatus(c, 1, u"Karton Ä"_s);
    AddStatus(c, 3, QString());
    c.Exec(u"INSERT INTO Links VALUES (1, 1, 2, 'Fortsetzung', 'Valdorin Heftromane'), "
           "(1, 2, 3, 'Finale in Weiß', 'Valdorin Taschenbücher');"_s);
}

struct Carrier {
    // The source's full list as .dat pair in the target's folder.
    QString Export() {
        const ExportList list = ExportRows(source);
        const ExportTarget where{target.collection.dir.path(), u"Sammlung"_s};
        ExportOptions options;
        options.csv = true;
        options.details = true;
        RunExportChain(source.session, list, where, options, {});
        return where.Path(u".dat"_s);
    }

    void Import(const QString& path, ImportMode mode) {
        target.import.ImportChosenFile(path, mode, true);
        QCOMPARE(target.import.Refused(), 0);
    }

    void CompareAll() {
        for (const QString& table : Tables)
            QCOMPARE(Dump(target.collection, table), Dump(source, table));
    }

    TempCollection source;
    ImportFixture target{false};
};

} // namespace

class TestRoundTrip : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyTableArrivesAndUpdatesFollow() {
        Carrier carrier;
        FillSource(carrier.source);
        carrier.Import(carrier.Export(), ImportMode::Insert);
        carrier.CompareAll();
        QCOMPARE(carrier.target.list.Heftliste.Rows() - 1, 3);

        // Changed at the source, brought over in "Alle Spalten".
        TempCollection& source = carrier.source;
        source.Exec(u"UPDATE HEFTLIST SET Titel='Neuer Titel €', Zyklus='V', GL=0 WHERE Nr=1;"_s);
        source.Exec(u"UPDATE Details SET Inhalt='Anders' WHERE Nr=3;"_s);
        source.Exec(u"UPDATE Gestaltung SET RZ=0 WHERE Nr=1;"_s);
        source.Exec(u"UPDATE Status SET StatusWert='Keller Ü' WHERE Nr=1 AND ENum=7;"_s);
        source.Exec(u"DELETE FROM Links WHERE Nr=1 AND ENum=2;"_s);
        carrier.Import(carrier.Export(), ImportMode::AllColumns);
        carrier.CompareAll();
    }

};

HEFT_TEST(TestRoundTrip)
#include "tst_roundtrip.moc"
