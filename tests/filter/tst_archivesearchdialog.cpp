// The archive search run from frm_filter over a copy of the archive on
// disk, in both modes, down to the main window and the filter's texts.

#include "testmain.h"
#include "testsupport.h"

#include "filter/ui/filterdialog.h"
#include "filter/ui/filtermode.h"
#include "mainwin/ui/mainwindow.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

class TestArchiveSearchDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
        QFETCH(int, rows);
        QFETCH(QString, textEnd);
        QFETCH(QString, note);
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
        QCOMPARE(model.rowCount(), rows);
        QCOMPARE(model.data(model.index(1, ColNr), Qt::BackgroundRole).value<QColor>(),
                 mode == u"Farbe" ? QColor(0, 255, 0) : QColor());
        QVERIFY2(state.ArchiveFilterText.endsWith(textEnd), qPrintable(state.ArchiveFilterText));
        QCOMPARE(state.ArchiveFilterNote, note);
        if (mode == u"Farbe")
            window.grab().save(QDir::temp().filePath(u"heftarium-archive-colour.png"_s));
    }
};

HEFT_TEST(TestArchiveSearchDialog)
#include "tst_archivesearchdialog.moc"
