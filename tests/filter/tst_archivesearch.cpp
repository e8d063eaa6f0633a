// The keyword search over archive pages in temporary folders: the copy of
// a CD on "disk", the words joined three ways, what the search does to the
// filter list, and the search run from frm_filter in both modes.

#include "testmain.h"
#include "testsupport.h"

#include "filter/archivesearch.h"
#include "filter/ui/filterdialog.h"
#include "filter/ui/filtermode.h"
#include "mainwin/entrylist.h"
#include "mainwin/ui/mainwindow.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

// Sections of the one page of all books on the first CD.
QByteArray Book(int nr, const QByteArray& text)
{
    return ArchivePageMarker() + QByteArray::number(nr) + "</FONT>" + text;
}

const ArchiveSearchHooks Quiet{[] { return QList<Volume>(); }, [](int) {}, [](int) {}, [](const QString&) {},
                               [] { return false; }};

} // namespace

class TestArchiveSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scan_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<int>("nr");
        QTest::addColumn<QString>("word2");
        QTest::addColumn<int>("join");
        QTest::addColumn<int>("result");
        // Page of Heft 5: "Admiral Veyl auf Gorrodor, Kr\xE4he".
        QTest::newRow("und, both") << u"Heftromane"_s << 5 << u"Gorrodor"_s << 0 << 2;
        QTest::newRow("und, one") << u"Heftromane"_s << 5 << u"Thumiur"_s << 0 << 0;
        QTest::newRow("exor, both") << u"Heftromane"_s << 5 << u"Gorrodor"_s << 2 << 0;
        QTest::newRow("case counts") << u"Heftromane"_s << 5 << u"gorrodor"_s << 1 << 1;
        QTest::newRow("umlaut in the page's code page") << u"Heftromane"_s << 5 << u"Krähe"_s << 0 << 2;
        QTest::newRow("missing page") << u"Heftromane"_s << 6 << QString() << 0 << -1;
        // The copy of CD I holds all books in one page, cut per book.
        QTest::newRow("own book section") << u"Taschenbücher"_s << 1 << QString() << 0 << 1;
        QTest::newRow("next book's words don't count") << u"Taschenbücher"_s << 2 << QString() << 0 << 0;
        QTest::newRow("last book has no end") << u"Taschenbücher"_s << 3 << QString() << 0 << 0;
    }
    void scan()
    {
        QFETCH(QString, list);
        QFETCH(int, nr);
        QFETCH(QString, word2);
        QFETCH(int, join);
        QTemporaryDir root;
        WriteFile(root.filePath(u"Archiv/HEFTE/HEFT0005.HTM"_s), "<P>Admiral Veyl auf Gorrodor, Kr\xE4he</P>");
        WriteFile(root.filePath(u"Archiv/SEITEN/BUECHER/TBs.htm"_s),
                  Book(1, "Veyl im Nebel ") + Book(2, "ohne ihn ") + Book(3, "wieder Veyl"));
        Configuration config;
        config.SeriesName = u"Valdorin"_s;
        config.ListKind = list;
        config.ArchiveRoot = root.path();
        const ArchiveQuery query{ArchiveMode::Filter, u"Veyl"_s, word2, static_cast<ArchiveJoin>(join)};
        const ArchivePageScanner scanner(config, query, [] { return QList<Volume>(); });
        const ArchiveEdition edition = list == u"Heftromane" ? ArchiveEdition::Second : ArchiveEdition::First;
        QTEST(scanner.ScanArchivePage(*ArchivePage(edition, list, nr), nr), "result");
    }

    void search_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("pages"); // "h" a hit, "-" no hit, "x" no page
        QTest::addColumn<int>("returned");
        QTest::addColumn<QString>("kept");  // numbers left in the list
        QTest::addColumn<QString>("marked");
        QTest::addColumn<QString>("textEnd");
        QTest::addColumn<QString>("note");
        const int farbe = static_cast<int>(ArchiveMode::Farbe);
        const int filter = static_cast<int>(ArchiveMode::Filter);
        QTest::newRow("filter 3 of 10") << filter << u"h--h---h--"_s << 10 << u"1 4 8"_s << QString()
                                        << u"  (7 von 10 Einträgen gefiltert)"_s
                                        << u"(Archivfilter:'Veyl' UND 'Gorrodor')"_s;
        QTest::newRow("filter drops every row") << filter << u"---"_s << 0 << u"1 2 3"_s << QString() << QString()
                                                << QString();
        QTest::newRow("colour, no hit") << farbe << u"---"_s << 3 << u"1 2 3"_s << QString()
                                        << u"  (Kein Eintrag markiert)"_s << QString();
        QTest::newRow("colour, one hit") << farbe << u"-h-"_s << 3 << u"1 2 3"_s << u"2"_s
                                         << u"  (1 Eintrag markiert)"_s << QString();
        QTest::newRow("page missing asks and stops") << farbe << u"hx"_s << 0 << u"1 2"_s << u"1"_s << QString()
                                                     << QString();
    }
    void search()
    {
        QFETCH(int, mode);
        QFETCH(QString, pages);
        QFETCH(QString, textEnd);
        QFETCH(QString, note);
        TempCollection collection;
        collection.session.Config.ArchiveRoot = collection.dir.path();
        std::vector<EntryCells> rows;
        for (int i = 0; i < pages.size(); ++i) {
            const int nr = i + 1;
            rows.push_back({QString::number(nr), u"A"_s, u"T"_s, u"-"_s, u"- - -"_s, {}, {}});
            if (pages[i] != u'x')
                WriteFile(collection.dir.filePath(u"Archiv/HEFTE/HEFT%1.HTM"_s.arg(nr, 4, 10, QChar(u'0'))),
                          pages[i] == u'h' ? "Veyl und Gorrodor" : "Veyl allein");
        }
        EntryList list;
        list.ActiveGrid = &list.Filter;
        list.Filter.Model().Reset(rows);
        ArchiveFilterTexts texts;
        const ArchiveQuery query{static_cast<ArchiveMode>(mode), u" Veyl "_s, u"Gorrodor"_s, ArchiveJoin::Und};
        QTEST(SearchArchive(collection.session, list, query, Quiet, texts), "returned");
        QStringList left, hits;
        const EntryGridModel& model = list.Filter.Model();
        for (int row = 0; row < model.rowCount(); ++row) {
            left << model.Text(row, ColNr);
            if (model.IsHitMarked(row))
                hits << model.Text(row, ColNr);
        }
        QTEST(left.join(u' '), "kept");
        QTEST(hits.join(u' '), "marked");
        QCOMPARE(collection.prompter.asked.size(), pages.contains(u'x') ? 1 : 0);
        if (textEnd.isEmpty()) {
            QVERIFY(texts.text.isEmpty());
            return;
        }
        QVERIFY2(texts.text.startsWith(u"\n\nStichwortsuche im Valdorin Archiv nach:\n'Veyl' UND 'Gorrodor'"_s),
                 qPrintable(texts.text));
        QVERIFY2(texts.text.endsWith(textEnd), qPrintable(texts.text));
        QCOMPARE(texts.note, note);
    }

    void modes_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("textEnd");
        QTest::addColumn<QString>("note");
        QTest::newRow("Farbe") << u"Farbe"_s << 4 << u"(2 von 4 Einträgen markiert)"_s << QString();
        QTest::newRow("Filter") << u"Filter"_s << 2 << u"(2 von 4 Einträgen gefiltert)"_s
                                << u"(Archivfilter:'Veyl')"_s;
    }
    void modes()
    {
        QFETCH(QString, mode);
        QFETCH(QString, textEnd);
        TempCollection collection;
        collection.session.Config.ArchiveRoot = collection.dir.path();
        collection.Add({{1, u"A"_s, u"Eins"_s}, {2, u"B"_s, u"Zwei"_s}, {3, u"C"_s, u"Drei"_s}, {4, u"D"_s, u"Vier"_s}});
        for (int nr = 1; nr <= 4; ++nr)
            WriteFile(collection.dir.filePath(u"archiv/hefte/heft000%1.htm"_s.arg(nr)),
                      nr % 2 == 0 ? "Admiral Veyl" : "Admiral VEYL");
        MainWindow window;
        window.LoadList(collection.session);
        FilterState state;
        state.ArchiveFilterText = u"alt"_s;
        FilterDialog dialog(window, state);
        dialog.show();
        QVERIFY(state.ArchiveFilterText.isEmpty());
        auto* field = dialog.findChild<QComboBox*>(u"cmb_ver0"_s);
        field->setCurrentIndex(field->findText(u"GRÖßER"_s));
        QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txt_10"_s), u"0"_s);
        auto* kind = dialog.findChild<QComboBox*>(u"cmb_aftype"_s);
        kind->setCurrentIndex(kind->findText(mode));
        QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txt_archiv1"_s), u"Veyl"_s);
        dialog.findChild<QPushButton*>(u"btn_ausf"_s)->click();

        QVERIFY(collection.prompter.asked.isEmpty());
        QVERIFY(window.IsFilterMode());
        const EntryGridModel& model = window.List().Filter.Model();
        QTEST(model.rowCount(), "rows");
        QCOMPARE(model.data(model.index(1, ColNr), Qt::BackgroundRole).value<QColor>(),
                 mode == u"Farbe" ? QColor(0, 255, 0) : QColor());
        QVERIFY2(state.ArchiveFilterText.endsWith(textEnd), qPrintable(state.ArchiveFilterText));
        QTEST(state.ArchiveFilterNote, "note");
    }
};

HEFT_TEST(TestArchiveSearch)
#include "tst_archivesearch.moc"
