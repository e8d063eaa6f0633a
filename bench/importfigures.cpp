// The file import of a list file and its details file of 10,000 entries into
// an empty collection, the way the window runs it: grid rows appended and
// the event round after every line. Beside it the same rows written by the
// same code inside one transaction, as the floor the disk allows.

#include "benchsupport.h"

#include "core/config.h"
#include "core/schema.h"
#include "core/session.h"
#include "exchange/datfile.h"
#include "exchange/importengine.h"
#include "mainwin/entrylist.h"

#include <QCoreApplication>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int Entries = 10000;

// The pair of files, written once for the whole run.
const QTemporaryDir& ImportFiles()
{
    static QTemporaryDir dir;
    static const bool written = [] {
        heft::DatOutputFile list, details;
        if (!list.Open(dir.filePath(u"liste.dat"_s)) || !details.Open(dir.filePath(u"liste_Details.dat"_s)))
            qFatal("bench import files not created");
        list.WriteLine(heft::ListHeader(u"Valdorin"_s, u"Heftromane"_s));
        details.WriteLine(heft::DetailsHeader(u"Valdorin"_s));
        for (int nr = 1; nr <= Entries; ++nr) {
            heft::ListRecord entry;
            entry.Nr = QString::number(nr);
            entry.Autor = u"Autor %1"_s.arg(nr % 97);
            entry.Titel = u"Titel der Nummer %1 über den Sternenriff"_s.arg(nr);
            entry.Auflage = QString::number(nr % 3 + 1);
            entry.Zyklus = u"XIV"_s;
            entry.Gelesen = nr % 2 == 0;
            entry.Bemerkung = u"Bemerkung €"_s;
            list.WriteLine(heft::ListLine(entry));

            heft::DetailsRecord d;
            d.Nr = entry.Nr;
            d.Ersterscheinung = u"2006-10-05"_s;
            d.Untertitel = u"Untertitel %1"_s.arg(nr);
            d.Persons[0] = u"Person Eins"_s;
            d.Persons[1] = u"Person Zwei"_s;
            d.Inhalt = u"Inhalt der Nummer %1 mit einem längeren Text"_s.arg(nr);
            d.TiBiZeichner = u"Zeichnerin"_s;
            d.IlluZeichner = u"Illustrator"_s;
            d.Rz = nr % 5 == 0;
            for (int n = 0; n < heft::StatusCount; ++n)
                d.Status[static_cast<size_t>(n)] = u"%1"_s.arg(n * 7 + nr, 7, 10, QChar(u'0'));
            d.Links[0] = {nr + 1, u"Fortsetzung"_s, u"Valdorin"_s};
            d.Links[1] = {nr + 2, u"Siehe auch"_s, u"Valdorin"_s};
            d.LinksRead = 2;
            details.WriteLine(heft::DetailsLine(d));
        }
        if (!list.Close() || !details.Close())
            qFatal("bench import files not written");
        return true;
    }();
    Q_UNUSED(written);
    return dir;
}

// What the window does between lines.
class EventRound : public heft::ImportObserver {
public:
    bool LineDone(qint64) override
    {
        QCoreApplication::processEvents();
        return true;
    }
};

double ImportMs(bool oneTransaction)
{
    const QString listFile = ImportFiles().filePath(u"liste.dat"_s);
    int run = 0;
    return heft::bench::MedianMs(3, [&] {
        QTemporaryDir dir;
        heft::Session session;
        heft::DbError error;
        session.CollectionDb = heft::CreateCollectionFile(dir.filePath(u"Import%1.mdb"_s.arg(++run)), u"Valdorin"_s,
                                                          u"Heftromane"_s, &error);
        if (!session.CollectionDb)
            qFatal("bench collection not created: %s", qPrintable(error.description));
        heft::ReadConfiguration(session, &error);
        heft::ReadParameters(session);
        session.ActiveCaption = [] { return heft::ImportCaption(); };
        heft::EntryList list;
        session.SharedRecordset = session.CollectionDb->Select(u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s);
        list.SetupGridColumns();
        list.FillGrid(session);

        EventRound observer;
        heft::FileImport import(session, list, observer);
        if (oneTransaction)
            session.CollectionDb->BeginChange();
        import.ImportChosenFile(listFile, heft::ImportMode::Insert, true);
        if (oneTransaction)
            session.CollectionDb->EndChange();
        if (import.Refused() != 0 || list.Heftliste.Rows() != Entries + 1)
            qFatal("bench import incomplete: %d refused, %d rows", import.Refused(), list.Heftliste.Rows() - 1);
    });
}

} // namespace

HEFT_BENCH_FIGURE(import_10k_ms, [] { return ImportMs(false); })
HEFT_BENCH_FIGURE(import_bulk_10k_ms, [] { return ImportMs(true); })
