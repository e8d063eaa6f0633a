// The print window on a real collection: the controls for each output and
// their range rules, the PDF in the export folder, and the preview, which
// an empty range never reaches.

#include "testmain.h"
#include "testsupport.h"

#include "mainwin/ui/mainwindow.h"
#include "print/ui/printwindow.h"
#include "print/ui/printwindowinstall.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

struct Fixture {
    TempCollection collection;
    MainWindow main;
    PrintWindow* print = nullptr;

    Fixture()
    {
        collection.Add({{1, u"Ava"_s, u"Eins"_s, 1}, {2, u"Bo"_s, u"Zwei"_s}, {7, u"Cy"_s, u"Sieben"_s, 2},
                        {230, u"Di"_s, u"Spät"_s, 1}});
        collection.session.DataFolder = collection.dir.path();
        collection.session.Config.SeriesName = u"Valdorin"_s;
        collection.session.Config.ListKind = u"Heftromane"_s;
        main.LoadList(collection.session);
        InstallPrintWindow(main);
        main.Command(u"mnu_print"_s)->trigger();
        print = OpenPrintWindow(main);
    }
    template <typename T> T* Control(const QString& name) { return print->findChild<T*>(name); }
};

} // namespace

class TestPrintWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void controlsFollowTheChoice()
    {
        Fixture f;
        QVERIFY(f.main.IsCommandEnabled(u"mnu_print"_s));
        QVERIFY(f.print != nullptr && f.print->isVisible());
        auto* liste = f.Control<QComboBox>(u"cmb_liste"_s);
        QCOMPARE(liste->count(), 2); // no "-Filter-" without a filter list
        auto* from = f.Control<QComboBox>(u"cmb_from"_s);
        auto* to = f.Control<QComboBox>(u"cmb_to"_s);
        from->setCurrentIndex(2);
        QCOMPARE(to->currentIndex(), 2);
        to->setCurrentIndex(1);
        QCOMPARE(from->currentIndex(), 1);

        liste->setCurrentIndex(1);
        auto* txtFrom = f.Control<QLineEdit>(u"txt_from"_s);
        auto* txtTo = f.Control<QLineEdit>(u"txt_to"_s);
        QVERIFY(txtFrom->isVisible() && txtFrom->isEnabled() && !from->isVisible());
        QVERIFY(!f.Control<QCheckBox>(u"chk_savem"_s)->isEnabled());
        QCOMPARE(txtFrom->text() + u'-' + txtTo->text(), u"1-230"_s);
        txtTo->setText(u"5"_s);
        txtFrom->setFocus();
        txtFrom->selectAll();
        QTest::keyClicks(txtFrom, u"9x99"_s);
        QTest::keyClick(txtFrom, Qt::Key_Return); // clamped to the highest, and "bis" follows
        QCOMPARE(txtFrom->text() + u'-' + txtTo->text(), u"230-230"_s);
        QCOMPARE(f.print->focusWidget(), txtTo);
    }

    void pdfIntoExportFolder()
    {
        Fixture f;
        f.Control<QCheckBox>(u"chk_landscape"_s)->setChecked(true);
        f.Control<QPushButton>(u"btn_pdf"_s)->click();
        const QString pdf = f.collection.dir.filePath(u"export/Valdorin Heftromane -Matrix-.pdf"_s);
        QVERIFY(QFileInfo(pdf).size() > 1000);
        QCOMPARE(f.main.StatusPanelText(5), u"PDF gespeichert: "_s + pdf);
    }

    void previewUnlessTheRangeIsEmpty()
    {
        Fixture f;
        f.Control<QComboBox>(u"cmb_liste"_s)->setCurrentIndex(1);
        f.Control<QLineEdit>(u"txt_from"_s)->setText(u"3"_s);
        f.Control<QLineEdit>(u"txt_to"_s)->setText(u"6"_s);
        f.Control<QPushButton>(u"btn_preview"_s)->click();
        QVERIFY(f.print->findChild<QPrintPreviewDialog*>() == nullptr);
        QCOMPARE(f.collection.prompter.asked.last().title, u"Keine Einträge gefunden"_s);
        QCOMPARE(f.collection.prompter.asked.last().text,
                 u"Im Nummernbereich 3 bis 6 sind\r\nkeine Heftromane Einträge vorhanden."_s);

        f.Control<QLineEdit>(u"txt_to"_s)->setText(u"230"_s);
        f.Control<QPushButton>(u"btn_preview"_s)->click();
        auto* preview = f.print->findChild<QPrintPreviewDialog*>(u"frm_preview"_s);
        QVERIFY(preview != nullptr && preview->isVisible());
        QCOMPARE(preview->windowTitle(), u"Valdorin Heftromane -Gesamtliste-"_s);
        preview->close();
    }
};

HEFT_TEST(TestPrintWindow)
#include "tst_printwindow.moc"
