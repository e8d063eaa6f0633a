// heftarium-build-data DATA_FOLDER OUTPUT_FOLDER
//
// Makes the files the program ships: the two list files VN-HR.mdb and
// VN-TB.mdb, the default collection Heftarium.mdb (the Heftromane list with
// the sample collector's marks laid over it), the cycle file, the marker that
// tells a data folder is complete, and the two images. The sources are
// exchange files, read with the program's own reader, so a source line the
// reader would refuse stops the build instead of vanishing quietly.

#include "core/database.h"
#include "core/schema.h"
#include "core/textfuncs.h"
#include "datsources.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>

#include <vector>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

const QString Series = SourceSeries();
const QString Heftromane = u"Heftromane"_s;
const QString Taschenbuecher = u"Taschenbücher"_s;

void Run(Database& db, const QString& sql)
{
    if (const DbError error = db.Execute(sql))
        throw BuildError(u"%1 (%2): %3"_s.arg(db.Path()).arg(error.number).arg(error.description) + u'\n' + sql);
}

QString Text(const QString& value)
{
    return u'\'' + QuoteSql(value) + u'\'';
}

QString YesNo(bool value)
{
    return value ? u"255"_s : u"0"_s;
}

void InsertEntry(Database& db, const ListRecord& r)
{
    Run(db, u"INSERT INTO HEFTLIST (Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung) VALUES (%1, %2, %3, %4, "
            "%5, %6, %7);"_s.arg(r.Nr, Text(r.Autor), Text(r.Titel), QString::number(r.AuflageNumber),
                                 Text(r.Zyklus), YesNo(r.Gelesen), Text(r.Bemerkung)));
}

void InsertDetails(Database& db, const DetailsRecord& r)
{
    QStringList values = {r.Nr, Text(FormatDatDate(r.Ersterscheinung)), Text(StripLineBreaks(r.Untertitel))};
    for (const QString& person : r.Persons)
        values << Text(person);
    values << Text(StripLineBreaks(r.Inhalt));
    Run(db, u"INSERT INTO Details (Nr, Ersterscheinung, Untertitel, Person1, Person2, Person3, Person4, Person5, "
            "Person6, Person7, Person8, Person9, Inhalt) VALUES ("_s +
                values.join(u", "_s) + u");"_s);
    Run(db, u"INSERT INTO Gestaltung (Nr, TiBiZeichner, IlluZeichner, RZ, RiZeObjekt, RiZeZeichner) VALUES (%1, "
            "%2, %3, %4, %5, %6);"_s.arg(r.Nr, Text(r.TiBiZeichner), Text(r.IlluZeichner), YesNo(r.Rz),
                                         Text(r.RiZeObjekt), Text(r.RiZeZeichner)));
    // Only attributes with a value get a row: an entry that was never saved
    // in the detail window has no empty rows either.
    for (int e = 1; e <= StatusCount; ++e)
        if (const QString& value = r.Status[static_cast<size_t>(e - 1)]; !value.isEmpty())
            Run(db, u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (%1, %2, %3);"_s.arg(r.Nr).arg(e).arg(
                        Text(value)));
    for (int i = 0; i < r.LinksRead && r.Links[static_cast<size_t>(i)].Num != 0; ++i) {
        const DatLink& link = r.Links[static_cast<size_t>(i)];
        Run(db, u"INSERT INTO Links (Nr, ENum, LinkNum, LinkText, LinkSerie) VALUES (%1, %2, %3, %4, %5);"_s.arg(
                    r.Nr, QString::number(i + 1), QString::number(link.Num), Text(link.Text), Text(link.Serie)));
    }
}

std::unique_ptr<Database> NewFile(const QString& path, const QString& kind)
{
    QFile::remove(path);
    DbError error;
    auto db = CreateCollectionFile(path, Series, kind, &error);
    if (!db)
        throw BuildError(u"%1: %2"_s.arg(path, error.description));
    return db;
}

void WriteCollection(const QString& path, const QString& kind, const std::vector<ListRecord>& entries,
                     const std::vector<DetailsRecord>& details)
{
    auto db = NewFile(path, kind);
    db->BeginChange();
    for (const ListRecord& entry : entries)
        InsertEntry(*db, entry);
    for (const DetailsRecord& record : details)
        InsertDetails(*db, record);
    db->EndChange();
}

// The collector's marks: his list lines replace the reference lines of the
// same number, and his attribute values stand over the reference values.
void LayMarks(std::vector<ListRecord>& entries, std::vector<DetailsRecord>& details, const QString& folder)
{
    QHash<QString, ListRecord> marks;
    for (ListRecord& mark : ReadList(folder + u"/Sammlung.dat"_s, Heftromane))
        marks.insert(mark.Nr, std::move(mark));
    for (ListRecord& entry : entries)
        entry = marks.value(entry.Nr, entry);

    QHash<QString, DetailsRecord> own;
    for (DetailsRecord& record : ReadDetails(folder + u"/Sammlung_Details.dat"_s))
        own.insert(record.Nr, std::move(record));
    for (DetailsRecord& record : details) {
        const auto found = own.constFind(record.Nr);
        if (found == own.constEnd())
            continue;
        for (size_t e = 0; e < record.Status.size(); ++e)
            if (!found->Status[e].isEmpty())
                record.Status[e] = found->Status[e];
    }
}

void WriteCycles(const QString& path, const QString& source)
{
    QFile::remove(path);
    DbError error;
    auto db = CreateCycleFile(path, &error);
    if (!db)
        throw BuildError(u"%1: %2"_s.arg(path, error.description));
    db->BeginChange();
    for (const CycleRecord& r : ReadRecords<CycleReader, CycleRecord>(source, DatKind::Cycle, QString()))
        Run(*db, u"INSERT INTO ZyklusListe (Zyklus, NrVon, NrBis, ZeitVon, ZeitBis, Bezeichnung, Zyklusbereich) "
                 "VALUES (%1, %2, %3, %4, %5, %6, %7);"_s.arg(Text(r.Zyklus), r.NrVon, r.NrBis, r.ZeitVon, r.ZeitBis,
                                                              Text(r.Bezeichnung), Text(r.Zyklusbereich)));
    db->EndChange();
}

void CopyFile(const QString& from, const QString& to)
{
    QFile::remove(to);
    if (!QFile::copy(from, to))
        throw BuildError(u"%1 kann nicht nach %2 kopiert werden"_s.arg(from, to));
}

// Any non-empty file does; the program only asks whether it is there.
void WriteMarker(const QString& path)
{
    QFile marker(path);
    if (!marker.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        marker.write("Heftarium: vollständiger Datenordner\r\n") < 0)
        throw BuildError(u"%1 kann nicht geschrieben werden"_s.arg(path));
}

void Build(const QString& data, const QString& out)
{
    const QString sources = data + u"/valdorin"_s;
    const QString dbs = out + u"/DBs"_s;
    if (!QDir().mkpath(dbs) || !QDir().mkpath(out + u"/bm"_s))
        throw BuildError(u"%1 kann nicht angelegt werden"_s.arg(out));

    std::vector<ListRecord> hefte = ReadList(sources + u"/Heftromane.dat"_s, Heftromane);
    std::vector<DetailsRecord> heftDetails = ReadDetails(sources + u"/Heftromane_Details.dat"_s);
    WriteCollection(dbs + u"/VN-HR.mdb"_s, Heftromane, hefte, heftDetails);
    WriteCollection(dbs + u"/VN-TB.mdb"_s, Taschenbuecher,
                    ReadList(sources + u"/Taschenbuecher.dat"_s, Taschenbuecher),
                    ReadDetails(sources + u"/Taschenbuecher_Details.dat"_s));
    LayMarks(hefte, heftDetails, sources);
    WriteCollection(dbs + u"/Heftarium.mdb"_s, Heftromane, hefte, heftDetails);
    WriteCycles(dbs + u"/Valdorin Zyklus.mdb"_s, sources + u"/Valdorin-Zyklus.dat"_s);
    WriteMarker(dbs + u"/Heftarium.marker"_s);
    for (const QString& image : {u"Logo.svg"_s, u"Splash.svg"_s})
        CopyFile(data + u"/bm/"_s + image, out + u"/bm/"_s + image);
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    return RunBuildTool(app.arguments(), "heftarium-build-data", Build);
}
