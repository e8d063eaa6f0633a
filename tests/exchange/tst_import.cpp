// The file import engine: what each mode writes for list, details and cycle
// files, the quirks it keeps, and the report texts.

#include "importfixture.h"
#include "testmain.h"

#include "core/schema.h"
#include "exchange/datformat.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

const QString ListHead = u"[Valdorin Heftromane]"_s;
const QString EntrySql = u"SELECT Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung FROM HEFTLIST WHERE Nr=%1;"_s;

QStringList Status19(const QString& fifth, const QString& last = {})
{
    QStringList values(StatusCount);
    values[0] = u"neu eins"_s;
    values[4] = fifth;
    values[18] = last;
    return values;
}

} // namespace

class TestImport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listFile_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("nr");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("refused");
        QTest::addColumn<int>("rows"); // of the full list afterwards

        QTest::newRow("insert, umlauts and euro")
            << 0 << Fields({u"3"_s, u"Jörg Weiß"_s, u"Größe 5 €"_s, u"2"_s, u"xiv"_s, u"Ja"_s, u"Preis: 5 €"_s})
            << 3 << u"3|Jörg Weiß|Größe 5 €|2|XIV|-1|Preis: 5 €"_s << 0 << 3;
        QTest::newRow("all columns, the entry then stands twice")
            << 1 << Fields({u"1"_s, u"Neu"_s, u"O'Neill"_s, u""_s, u""_s, u"Nein"_s, u""_s}) << 1
            << u"1|Neu|O'Neill|0|- - -|0|"_s << 0 << 3;
        QTest::newRow("update of a number the list lacks")
            << 1 << Fields({u"9"_s, u"Neu"_s, u"T"_s, u"1"_s, u""_s, u"Nein"_s, u""_s}) << 9 << QString() << 1 << 2;
        QTest::newRow("only imported: empty fields keep, the cycle does not")
            << 2 << Fields({u"1"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s}) << 1
            << u"1|Ada Quell|Nebelhafen|1|- - -|-1|alt"_s << 0 << 3;
        QTest::newRow("only imported: filled fields")
            << 2 << Fields({u"1"_s, u"Neu"_s, u"Neu T"_s, u"3"_s, u"v"_s, u"nein"_s, u"neu"_s}) << 1
            << u"1|Neu|Neu T|3|V|0|neu"_s << 0 << 3;
    }

    void listFile()
    {
        QFETCH(int, mode);
        QFETCH(QString, line);
        QFETCH(int, nr);
        QFETCH(int, refused);
        QFETCH(int, rows);
        ImportFixture f;
        f.import.ImportDatFile(f.Write(u"liste.dat"_s, ListHead, {line}), static_cast<ImportMode>(mode));
        QTEST(f.Rows(EntrySql.arg(nr)), "stored");
        QCOMPARE(f.import.Refused(), refused);
        QCOMPARE(f.list.Heftliste.Rows() - 1, rows);
        if (refused == 0) {
            // The new last row was filled from the collection; the list is
            // sorted again and stands on the line's number.
            QCOMPARE(f.list.Heftliste.TextMatrix(f.list.Heftliste.Row(), ColNr), QString::number(nr));
            QCOMPARE(f.list.Heftliste.TextMatrix(rows, ColNr), QString::number(std::max(nr, 2)));
        }
    }

    void detailsFile_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("refused");
        QTest::addColumn<QString>("details");
        QTest::addColumn<QString>("gestaltung");
        QTest::addColumn<QString>("status");
        QTest::addColumn<QString>("links");

        const QStringList design{u"T2"_s, u"I2"_s, u"JA"_s, u"O2"_s, u"Z2"_s};
        const QString withStatus = DetailsFields(u"1"_s, u"2006-Oktober-05"_s, u"Neuer Untertitel"_s,
                                                 u"Jürgen"_s, u"Neuer Inhalt"_s, design) +
                                   Fields(Status19(u"0000003"_s)) + Fields({u"12"_s, u"Neuer Link"_s, u"VN"_s});
        const QString withoutStatus = DetailsFields(u"1"_s, u"Herbst 1962"_s, u"Neuer Untertitel"_s, u""_s,
                                                    u"Neuer Inhalt"_s, design) +
                                      Fields({u""_s});
        const QString sparse =
            DetailsFields(u"1"_s, u""_s, u""_s, u""_s, u""_s, {u""_s, u"I2"_s, u"JA"_s, u""_s, u""_s}) +
            Fields(Status19(u""_s, u"O'Neil"_s)) + Fields({u"12"_s, u"Neuer Link"_s, u"VN"_s, u"13"_s, u"Neu"_s, u""_s});
        // Every text one character beyond its limit (the content limit is
        // the collection's) is stored at its limit.
        const auto text = [](int limit, char16_t c) { return QString(limit + 1, c); };
        const QString beyond =
            DetailsFields(u"1"_s, u"2006-10-05"_s, text(128, u'u'), text(32, u'p'), text(200, u'i'),
                          {text(64, u't'), text(64, u'l'), u"ja"_s, text(96, u'o'), text(64, u'z')}) +
            Fields(Status19(text(128, u's'))) + Fields({u"12"_s, text(128, u'k'), text(48, u'v')});

        const QString oldDetails = u"1999-01-02|Alter Untertitel|Olga|Alter Inhalt"_s;
        const QString oldDesign = u"Tibi|Illu|0|Objekt|Zeichner"_s;
        const QString oldStatus = u"2 1=alt eins,5=0000002"_s;
        const QString oldLinks = u"1:7:Alter Link:Valdorin"_s;
        QTest::newRow("insert on an existing entry")
            << 0 << withStatus << 1 << oldDetails << oldDesign << oldStatus << oldLinks;
        // A link number that is no number drops the link.
        QTest::newRow("all columns, link without number")
            << 1 << QString(withStatus).replace(u"\"12\";"_s, u"\"x\";"_s) << 0
            << u"2006-10-05|Neuer Untertitel|Jürgen|Neuer Inhalt"_s << u"T2|I2|-1|O2|Z2"_s
            << u"19 1=neu eins,5=0000003"_s << QString();
        QTest::newRow("all columns without status part")
            << 1 << withoutStatus << 0 << u"Herbst 1962|Neuer Untertitel||Neuer Inhalt"_s << u"T2|I2|-1|O2|Z2"_s
            << oldStatus << oldLinks;
        QTest::newRow("only imported keeps empty fields")
            << 2 << sparse << 0 << oldDetails << u"Tibi|I2|-1|Objekt|Zeichner"_s
            << u"3 1=neu eins,5=0000002,19=O'Neil"_s << u"1:12:Neuer Link:VN,2:13:Neu:"_s;
        QTest::newRow("texts one beyond their limits")
            << 1 << beyond << 0
            << u"2006-10-05|"_s + QString(128, u'u') + u'|' + QString(32, u'p') + u'|' + QString(200, u'i')
            << QString(64, u't') + u'|' + QString(64, u'l') + u"|-1|"_s + QString(96, u'o') + u'|' + QString(64, u'z')
            << u"19 1=neu eins,5="_s + QString(128, u's') << u"1:12:"_s + QString(128, u'k') + u':' + QString(48, u'v');
    }

    void detailsFile()
    {
        QFETCH(int, mode);
        QFETCH(QString, line);
        QFETCH(QString, gestaltung);
        QFETCH(QString, status);
        QFETCH(QString, links);
        ImportFixture f;
        f.collection.session.Config.ContentLimit = 200;
        f.import.ImportDatFile(f.Write(u"liste_Details.dat"_s, u"[Valdorin Details]"_s, {line}),
                               static_cast<ImportMode>(mode));
        QTEST(f.import.Refused(), "refused");
        QTEST(f.Rows(u"SELECT Ersterscheinung, Untertitel, Person1, Inhalt FROM Details WHERE Nr=1;"_s), "details");
        QCOMPARE(f.Rows(u"SELECT TiBiZeichner, IlluZeichner, RZ, RiZeObjekt, RiZeZeichner FROM Gestaltung;"_s),
                 gestaltung);
        // The count of rows tells the empty values apart, which are stored too.
        QCOMPARE(f.Rows(u"SELECT COUNT(*) || ' ' || GROUP_CONCAT(IIF(StatusWert='', NULL, ENum || '=' || StatusWert)) "
                        "FROM (SELECT * FROM Status WHERE Nr=1 ORDER BY ENum);"_s),
                 status);
        QCOMPARE(f.Rows(u"SELECT GROUP_CONCAT(ENum || ':' || LinkNum || ':' || LinkText || ':' || LinkSerie) FROM Links;"_s),
                 links);
    }

    void cycleFile_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("refused");

        QTest::newRow("insert") << 0 << Fields({u"III"_s, u"20"_s, u"29"_s, u"1990"_s, u"1991"_s, u"Die Flut"_s, u"B"_s})
                                << u"I|1|9|1980|1981|Anfang|A/III|20|29|1990|1991|Die Flut|B"_s << 0;
        QTest::newRow("insert of a stored cycle")
            << 0 << Fields({u"I"_s, u"20"_s, u"29"_s, u"1990"_s, u"1991"_s, u"Doppelt"_s, u""_s})
            << u"I|1|9|1980|1981|Anfang|A"_s << 1;
        QTest::newRow("all columns") << 1 << Fields({u"I"_s, u"2"_s, u"8"_s, u"1970"_s, u"1971"_s, u"O'Alle"_s, u""_s})
                                     << u"I|2|8|1970|1971|O'Alle|"_s << 0;
        QTest::newRow("only imported") << 2 << Fields({u"I"_s, u""_s, u"12"_s, u""_s, u""_s, u"O'Neu"_s, u""_s})
                                       << u"I|1|12|1980|1981|O'Neu|A"_s << 0;
    }

    void cycleFile()
    {
        QFETCH(int, mode);
        QFETCH(QString, line);
        ImportFixture f;
        Session& session = f.collection.session;
        const QString path = f.Write(u"Valdorin-Zyklus.dat"_s, u"[Valdorin Zyklen]"_s, {line});
        f.import.ImportDatFile(path, static_cast<ImportMode>(mode));
        QCOMPARE(f.import.Texts().bericht, u"Es wurden keine Zyklus Daten importiert."_s);
        QCOMPARE(f.import.Texts().fehler, u"Die Zyklen Datenbank konnte nicht geöffnet werden."_s);

        DbError error;
        session.CycleDb = CreateCycleFile(f.collection.dir.filePath(u"Valdorin Zyklus.mdb"_s), &error);
        QVERIFY(session.CycleDb);
        QVERIFY(!session.CycleDb->Execute(u"INSERT INTO ZyklusListe VALUES ('I', 1, 9, 1980, 1981, 'Anfang', 'A');"_s));
        f.import.ImportDatFile(path, static_cast<ImportMode>(mode));
        QTEST(f.import.Refused(), "refused");
        QCOMPARE(f.import.Texts().caption, u"Bericht über Valdorin Zyklen Import"_s);
        QTEST(ImportFixture::Rows(*session.CycleDb, u"SELECT * FROM ZyklusListe ORDER BY NrVon;"_s), "stored");
    }

    void reports_data()
    {
        QTest::addColumn<QString>("header");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("bericht");
        QTest::addColumn<QString>("fehler");

        QTest::newRow("empty file") << QString() << QStringList() << u"Keine Import Datei ausgewählt."_s
                                    << u"%1 ist keine gültige Importdatei."_s;
        QTest::newRow("header only") << ListHead << QStringList()
                                     << u"Es konnten keine Datensätze in die DB importiert werden."_s
                                     << u"Es sind keine Fehler aufgetreten."_s;
        const QString listHeader = ImportHeaderLine(DatKind::List);
        QTest::newRow("one taken, one cut short, one existing")
            << ListHead
            << QStringList{Fields({u"3"_s, u"Jörg"_s, u"Über €"_s, u"1"_s, u"I"_s, u"Ja"_s, u"b"_s}),
                           u"\"4\";\"Nur Autor"_s, Fields({u"2"_s, u"B"_s, u"T"_s, u""_s, u""_s, u""_s, u""_s})}
            << u"Es wurde 1 Datensatz in die Datenbank importiert.\r\n\r\n"_s + listHeader +
                   u"\r\n1    3     Jörg                      Über €                                             "
                   "1    I        Ja   b"_s
            << u"2 Datensätze konnten nicht importiert werden.\r\n\r\nFEHLERART "_s + listHeader +
                   u"\r\nDatFormat 2    4     Jörg                      Über €                                     "
                   "        1    I        Ja   b\r\n"
                   "DB-InsUpd 3    2     B                         T                                                  "
                   "-    - - -    Nein "_s;
    }

    void reports()
    {
        QFETCH(QString, header);
        QFETCH(QStringList, lines);
        QFETCH(QString, bericht);
        QFETCH(QString, fehler);
        ImportFixture f;
        const QString path = f.collection.dir.filePath(u"liste.dat"_s);
        if (!header.isEmpty() || !lines.isEmpty())
            f.Write(u"liste.dat"_s, header, lines);
        else
            WriteFile(path, {});
        f.import.ImportChosenFile(path, ImportMode::Insert, false);
        QCOMPARE(f.import.Texts().bericht, bericht);
        QCOMPARE(f.import.Texts().fehler,
                 fehler.contains(u"%1"_s) ? fehler.arg(QDir::toNativeSeparators(path)) : fehler);
    }

    // A list file with its details file beside it: one report of both.
    void withDetails()
    {
        ImportFixture f;
        const QString list = f.Write(u"neu.dat"_s, ListHead,
                                     {Fields({u"3"_s, u"A"_s, u"T"_s, u"1"_s, u"I"_s, u"Nein"_s, u""_s})});
        f.Write(u"neu_Details.dat"_s, u"[Valdorin Details]"_s,
                {DetailsFields(u"3"_s, u"2001-02-03"_s, u"Unter"_s, u""_s, u""_s, QStringList(5)) + Fields({u""_s})});
        f.import.ImportChosenFile(list, ImportMode::Insert, true);
        const ImportTexts& texts = f.import.Texts();
        QCOMPARE(texts.caption, u"Bericht über Valdorin Heftromane + Details Import"_s);
        QCOMPARE(texts.bericht,
                 u"------------------------- Daten -------------------------\r\n"
                 "Es wurde 1 Datensatz in die Datenbank importiert.\r\n\r\n"_s +
                     ImportHeaderLine(DatKind::List) + u"\r\n1    3     A                         T"_s +
                     QString(50, u' ') + u"1    I        Nein \r\n\r\n"
                                         "------------------------ Details ------------------------\r\n"
                                         "Es wurde 1 Datensatz in die Datenbank importiert.\r\n\r\n"
                                         "DaZe Nr    Ersterscheinung Untertitel\r\n"
                                         "1    3     2001-02-03       Unter"_s);
        QCOMPARE(texts.fehler, u"------------------------- Daten -------------------------\r\n"
                               "Es sind keine Fehler aufgetreten.\r\n\r\n"
                               "------------------------ Details ------------------------\r\n"
                               "Es sind keine Fehler aufgetreten."_s);
        QCOMPARE(f.Rows(u"SELECT Ersterscheinung FROM Details WHERE Nr=3;"_s), u"2001-02-03"_s);
    }
};

HEFT_TEST(TestImport)
#include "tst_import.moc"
