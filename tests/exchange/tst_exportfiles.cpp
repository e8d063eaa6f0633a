// The export chain on a real collection: the .dat pair byte for byte, the
// text list and details text, the HTML pages, the result text, and the
// .dat pair gone again when it was not asked for.

#include "exportfixture.h"
#include "testmain.h"

#include "exchange/exportrun.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

const QString E = u"\"\";"_s; // one empty field

struct Export {
    Export()
    {
        AddExportEntries(collection);
        QDir().mkpath(target.folder);
    }
    QString Run(const ExportOptions& options, const ExportList& list)
    {
        return RunExportChain(collection.session, list, target, options, {});
    }
    QString Run(const ExportOptions& options) { return Run(options, ExportRows(collection)); }
    QStringList Lines(const QString& suffix) const { return FileLines(target.Path(suffix)); }

    TempCollection collection;
    ExportTarget target{collection.dir.filePath(u"export"_s), u"Liste"_s};
};

ExportOptions Options(const QString& flags)
{
    ExportOptions o;
    o.csv = flags.contains(u'c');
    o.text = flags.contains(u't');
    o.html = flags.contains(u'h');
    o.details = flags.contains(u'd');
    o.gelesen = flags.contains(u'g');
    o.zyklus = flags.contains(u'z');
    return o;
}

} // namespace

class TestExportFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The list and details files byte for byte; a details file is made only
    // when asked for, which the result text tests below check.
    void datFiles()
    {
        const QString fullDetails =
            u"\"1\";\"1961-09-08\";\"Die <Flut> kommt\";\"Tarvin Ask\";\"\";\"Mela Orkun\";"_s + E.repeated(6) +
            u"\"Tarvin erreicht Aldorath.\";\"Lorenz Falk\";\"Ines Marwald\";\"Ja\";\"Kreuzer KASTOR\";"
            "\"Bodo Lessner\";\"2024-03-17 um 14:22:05\";"_s +
            E.repeated(3) + u"\"00001.5\";"_s + E.repeated(14) +
            u"\"2\";\"Fortsetzung\";\"Valdorin Heftromane\";\"3\";\"Finale\";"
            "\"Valdorin Taschenbücher\";"_s;
        const QString emptyDetails = u"\"3\";\"1900-12-31\";\"1900-12-31\";"_s + E.repeated(10 + 5 + 19);
        Export e;
        e.Run(Options(u"cd"_s));
        QCOMPARE(e.Lines(u".dat"_s),
                 (QStringList{u"[Valdorin Heftromane]"_s,
                              u"\"1\";\"Ada Quell\";\"Nebelhafen & Söhne\";\"2\";\"IV\";\"Ja\";\"Preis 5 €\";"_s,
                              u"\"2\";\"Bert Lohmann\";\"Glutwüste\";\"-\";\"- - -\";\"Nein\";\"\";"_s,
                              u"\"3\";\"Cleo Marr\";\"Kaltes Licht\";\"1\";\"XII\";\"Ja\";\"\";"_s}));
        QCOMPARE(e.Lines(u"_Details.dat"_s), (QStringList{u"[Valdorin Details]"_s, fullDetails, emptyDetails}));
    }

    void textList_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<bool>("filtered");
        QTest::addColumn<QStringList>("lines"); // head, rows 1 and 2, summary
        const QString rule163(163, u'-');
        QTest::newRow("GL, '-' kept")
            << u"tgz"_s << false
            << QStringList{u"NR   AUTOR                     TITEL                                              AUFL "
                           "ZYKLUS GL   BEMERKUNG"_s,
                           rule163,
                           u"   1 Ada Quell                 Nebelhafen & Söhne                                 2   "
                           "     IV   Ja Preis 5 €"_s,
                           u"   2 Bert Lohmann              Glutwüste                                          -     "
                           u"- "
                           "- - Nein "_s,
                           u"Valdorin Heftromane Nummer 1-3 (3 Einträge)"_s};
        QTest::newRow("plain, filtered")
            << u"t"_s << true
            << QStringList{u"NR   AUTOR                     TITEL                                              AUFL "
                           "ZYKLUS BEMERKUNG"_s,
                           QString(158, u'-'),
                           u"   1 Ada Quell                 Nebelhafen & Söhne                                 2   "
                           "     IV Preis 5 €"_s,
                           u"   2 Bert Lohmann              Glutwüste"_s + QString(54, u' '),
                           u"Valdorin Heftromane gefiltert nach: Nr kleiner als 3  (2 Einträge)"_s};
    }

    void textList()
    {
        QFETCH(QString, flags);
        QFETCH(bool, filtered);
        QFETCH(QStringList, lines);
        Export e;
        ExportList list = ExportRows(e.collection, filtered ? u"SELECT * FROM HEFTLIST WHERE Nr<3 ORDER BY Nr;"_s
                                                            : u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s);
        list.filtered = filtered;
        list.filterText = u"Nr kleiner als 3 "_s;
        e.Run(Options(flags), list);
        const QStringList text = e.Lines(u".txt"_s);
        QCOMPARE(text.size(), 2 + static_cast<int>(list.rows.size()) + 2);
        QCOMPARE(text.mid(0, 4), lines.mid(0, 4));
        QCOMPARE(text.at(text.size() - 2), lines[1]);
        QCOMPARE(text.last(), lines[4]);
        // Nothing but what was asked for, and the .dat pair is gone.
        QVERIFY(!QFile::exists(e.target.Path(u".html"_s)));
        QVERIFY(!QFile::exists(e.target.Path(u".dat"_s)));
    }

    void detailsText()
    {
        Export e;
        e.Run(Options(u"td"_s));
        const QStringList text = e.Lines(u"_Details.txt"_s);
        QCOMPARE(text.size(), 2 * (10 + 19 + 1) + 2);
        QCOMPARE(text.mid(0, 11),
                 (QStringList{u"Nummer:          1"_s, u"Ersterscheinung: 1961-09-08"_s,
                              u"Untertitel:      Die <Flut> kommt"_s, u"Personen:        Tarvin Ask, Mela Orkun"_s,
                              u"Inhalt:          Tarvin erreicht Aldorath."_s, u"Titelbild:       Lorenz Falk"_s,
                              u"Illustrationen:  Ines Marwald"_s, u"Rißzeichnung:    Ja"_s,
                              u"RZ Objekt:       Kreuzer KASTOR"_s, u"Rißzeichner:     Bodo Lessner"_s,
                              u"Letzte Änderung: 2024-03-17 um 14:22:05"_s}));
        // Each attribute under its own label, also when others are missing.
        QCOMPARE(text.mid(11, 5), (QStringList{u"Exemplare:       "_s, u"Zustand:         "_s, u"Verkäufer:       "_s,
                                               u"Kaufpreis [EUR]: 00001.5"_s, u"Wert [EUR]:      "_s}));
        QCOMPARE(text[28], u"Kritik:          "_s);
        QCOMPARE(text.mid(29, 3), (QStringList{u"Verknüpfung 01:  Valdorin #2 - Fortsetzung"_s,
                                               u"Verknüpfung 02:  Valdorin #3 - Finale"_s, QString()}));
        // The no-date value is left out; the empty entry has no links.
        QCOMPARE(text.mid(32, 3),
                 (QStringList{u"Nummer:          3"_s, u"Ersterscheinung: "_s, u"Untertitel:      1900-12-31"_s}));
    }

    void htmlPages_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QStringList>("head");
        QTest::addColumn<QStringList>("row"); // the lines of entry 1
        const QString cell = u"<TD><FONT face=Verdana size=2>%1</FONT></TD>"_s;
        const QString headCell = u"<TD bgColor=#330099><FONT face=Verdana color=#ffff00 size=4><STRONG>%1"
                                 "</STRONG></FONT></TD>"_s;
        const QStringList start{u"<HTML>"_s,
                                u"<HEAD>"_s,
                                u"<META NAME=\"GENERATOR\" CONTENT=\"Heftarium\">"_s,
                                u"<TITLE>Heftarium HTML Export</TITLE></HEAD>"_s,
                                u"<BODY text=#000000 bgColor=#ffffff>"_s,
                                u"<P>"_s,
                                u"<TABLE cellSpacing=0 cellPadding=0 width=\"100%\" bgColor=#ccccff border=0>"_s,
                                u"<TR>"_s};
        QStringList plainHead = start, fullHead = start;
        for (const QString& text : {u"NR  "_s, u"AUTOR  "_s, u"TITEL  "_s, u"AL  "_s, u"ZYKLUS "_s})
            plainHead << headCell.arg(text);
        fullHead = plainHead;
        plainHead << headCell.arg(u"BEMERKUNG  "_s) << u"</TR>"_s;
        fullHead << headCell.arg(u"GL  "_s) << headCell.arg(u"BEMERKUNG  "_s) << headCell.arg(u"DETAILS"_s)
                 << u"</TR>"_s;
        const QStringList values{u"1"_s, u"Ada Quell"_s, u"Nebelhafen & Söhne"_s, u"2"_s, u"IV"_s};
        QStringList plainRow{u"<TR>"_s}, fullRow{u"<TR>"_s};
        for (const QString& value : values)
            plainRow << cell.arg(value);
        fullRow = plainRow;
        plainRow << cell.arg(u"Preis 5 €"_s) << u"</TR>"_s;
        fullRow << cell.arg(u"Ja"_s) << cell.arg(u"Preis 5 €"_s)
                << cell.arg(u"<a href=\"Liste_Details\\1.html\">Anzeigen</a>"_s) << u"</TR>"_s;
        QTest::newRow("plain") << u"h"_s << plainHead << plainRow;
        QTest::newRow("GL and details") << u"hgd"_s << fullHead << fullRow;
    }

    void htmlPages()
    {
        QFETCH(QString, flags);
        QFETCH(QStringList, head);
        QFETCH(QStringList, row);
        Export e;
        e.Run(Options(flags));
        const QStringList page = e.Lines(u".html"_s);
        QCOMPARE(page.mid(0, head.size()), head);
        QCOMPARE(page.mid(head.size(), row.size()), row);
        QCOMPARE(page.mid(page.size() - 5),
                 (QStringList{u"</TABLE><P><font size=2>"_s, u"Valdorin Heftromane Nummer 1-3 (3 Einträge)"_s,
                              u"</font></P>"_s, u"</BODY>"_s, u"</HTML>"_s}));
        const QDir pages(e.target.DetailsFolder());
        QCOMPARE(pages.exists(), flags.contains(u'd'));
        if (flags.contains(u'd'))
            QCOMPARE(pages.entryList(QDir::Files, QDir::Name), (QStringList{u"1.html"_s, u"3.html"_s}));
    }

    void detailPage()
    {
        Export e;
        e.Run(Options(u"hd"_s));
        const QStringList full = FileLines(QDir(e.target.DetailsFolder()).filePath(u"1.html"_s));
        QVERIFY(full.contains(u"<TD bgColor=#330099><STRONG><FONT face=Verdana color=#ffff00 size=5>Detail Valdorin "
                              "Heftromane: #1</FONT></STRONG></TD></TR>"_s));
        QVERIFY(full.contains(u"<TD><FONT face=Verdana>Die <Flut> kommt</FONT></TD></TR>"_s));
        QVERIFY(full.contains(u"<TD><FONT face=Verdana>Valdorin Taschenbücher #3 - Finale</FONT></TD></TR>"_s));
        const qsizetype persons = full.indexOf(u"<TD bgColor=#99ccff><FONT face=Verdana size=4>Personen:</FONT></TD>"
                                               "</TR>"_s);
        QCOMPARE(full.mid(persons + 1, 4),
                 (QStringList{u"<TR>"_s, u"<TD><FONT face=Verdana>Tarvin Ask</FONT></TD></TR>"_s, u"<TR>"_s,
                              u"<TD><FONT face=Verdana>Mela Orkun</FONT></TD></TR>"_s}));
        QCOMPARE(full.mid(full.size() - 3), (QStringList{u"</TD></TR></TABLE></P>"_s, u"</BODY>"_s, u"</HTML>"_s}));

        // No status values: all 19 rows hold the empty-cell text, and the
        // no-date value and the missing RZ are empty cells as well.
        const QStringList empty = FileLines(QDir(e.target.DetailsFolder()).filePath(u"3.html"_s));
        const QString nbsp = u"<TD><FONT face=Verdana><p>&nbsp;</FONT></TD></TR>"_s;
        QCOMPARE(empty.count(nbsp), 19 + 1 + 5 + 1 + 1); // status, date, Gestaltung, Person1, Inhalt
    }

    void resultText_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QStringList>("sizes"); // what each size line is of
        QTest::addColumn<QString>("datPair");   // the .dat files left at the end
        QTest::newRow("csv alone") << u"c"_s << QStringList{u".dat"_s} << QStringList{u"CSV"_s} << u".dat"_s;
        QTest::newRow("everything") << u"cthd"_s
                                    << QStringList{u".dat"_s, u"_Details.dat"_s, u".txt"_s, u"_Details.txt"_s,
                                                   u".html"_s}
                                    << QStringList{u"CSV"_s, u"CSV Details"_s, u"Text"_s, u"Html"_s, u"Text Details"_s}
                                    << u".dat _Details.dat"_s;
    }

    void resultText()
    {
        QFETCH(QString, flags);
        QFETCH(QStringList, names);
        QFETCH(QStringList, sizes);
        QFETCH(QString, datPair);
        Export e;
        const QString result = e.Run(Options(flags));
        const bool several = names.size() > 1;
        QString expected = u"Es wurden 3/%1 Einträge exportiert.\r\n"_s.arg(flags.contains(u'd') ? 2 : 0) +
                           (several ? u"Verwendete Dateinamen:\r\n"_s : u"Verwendeter Dateiname:\r\n"_s);
        for (const QString& name : names)
            expected += u' ' + e.target.Path(name) + u"\r\n"_s;
        expected += several ? u"Erzeugte Dateigrößen:"_s : u"Erzeugte Dateigröße:"_s;
        const QMap<QString, QString> files{{u"CSV"_s, u".dat"_s},
                                           {u"CSV Details"_s, u"_Details.dat"_s},
                                           {u"Text"_s, u".txt"_s},
                                           {u"Html"_s, u".html"_s},
                                           {u"Text Details"_s, u"_Details.txt"_s}};
        for (const QString& what : sizes) {
            const qint64 size = QFileInfo(e.target.Path(files[what])).size();
            QVERIFY(size > 0);
            expected += u"\r\n %1 Bytes (%2)"_s.arg(size).arg(what);
        }
        QCOMPARE(result, expected);
        for (const QString& dat : {u".dat"_s, u"_Details.dat"_s})
            QCOMPARE(QFile::exists(e.target.Path(dat)), datPair.split(u' ').contains(dat));
    }
};

HEFT_TEST(TestExportFiles)
#include "tst_exportfiles.moc"
