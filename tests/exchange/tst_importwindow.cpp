// frm_import driven for real over the main window: a chosen file is
// imported and reported, a cancelled choice says so, Esc stops an import
// after its line and closes the window when nothing runs.

#include "importfixture.h"
#include "testmain.h"

#include "exchange/ui/importwindow.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>
#include <QDir>
#include <QGroupBox>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

struct WindowFixture {
    WindowFixture()
    {
        QDir(f.collection.session.DataFolder).mkpath(u"import"_s);
        window.LoadList(f.collection.session);
        dialog = std::make_unique<ImportWindow>(window);
        dialog->SetFileChooser([this](QWidget*, const QString&) { return chosen; });
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
    }
    template <typename T> T* Child(const QString& name) { return dialog->findChild<T*>(name); }
    QString Text(const QString& name) { return Child<QPlainTextEdit>(name)->toPlainText(); }

    ImportFixture f;
    MainWindow window;
    std::unique_ptr<ImportWindow> dialog;
    QString chosen;
};

QStringList ListLines(int from, int count)
{
    QStringList lines;
    for (int nr = from; nr < from + count; ++nr)
        lines << Fields({QString::number(nr), u"Autorin %1"_s.arg(nr), u"Titel Nummer %1 – Übergröße"_s.arg(nr),
                         u"1"_s, u"xii"_s, u"Ja"_s, u"Bemerkung mit €"_s});
    return lines;
}

} // namespace

class TestImportWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // A list file of more lines than one batch holds, with two refused
    // lines, both reports showing.
    void importsAndReports()
    {
        WindowFixture w;
        QStringList lines = ListLines(3, 120);
        lines.insert(2, u"\"20\";\"Abgeschnitten"_s);
        lines << Fields({u"1"_s, u"Ada Quell"_s, u"Nebelhafen"_s, u"1"_s, u"II"_s, u"Ja"_s, u"schon da"_s});
        w.chosen = w.f.Write(u"neu/liste.dat"_s, u"[Valdorin Heftromane]"_s, lines);
        QTest::mouseClick(w.Child<QPushButton>(u"btn_choose"_s), Qt::LeftButton);

        QCOMPARE(w.dialog->ImportFolder(), w.f.collection.dir.filePath(u"neu"_s));
        QCOMPARE(w.Child<QGroupBox>(u"frm_bericht"_s)->title(), u"Bericht über Valdorin Heftromane Import"_s);
        QVERIFY(w.Text(u"txt_bericht"_s).startsWith(u"Es wurden 120 Datensätze in die Datenbank importiert."_s));
        QVERIFY(w.Text(u"txt_fehler"_s).startsWith(u"2 Datensätze konnten nicht importiert werden."_s));
        QCOMPARE(w.window.List().Heftliste.Rows() - 1, 122);
        QVERIFY(w.window.findChild<QWidget*>(u"fg_heftliste"_s)->isEnabled());
        QCOMPARE(w.window.StatusPanelText(5), u"Fertig und Bereit."_s);
    }

    void escape()
    {
        WindowFixture w;
        QTest::mouseClick(w.Child<QPushButton>(u"btn_choose"_s), Qt::LeftButton);
        QCOMPARE(w.Text(u"txt_bericht"_s), u"Keine Import Datei ausgewählt."_s);
        QCOMPARE(w.Text(u"txt_fehler"_s), u"Keine Fehler."_s);
        w.chosen = w.f.Write(u"liste.dat"_s, u"[Valdorin Heftromane]"_s, ListLines(3, 5));
        // The Esc waits in the queue until the import lets events run after
        // its first line.
        QCoreApplication::postEvent(w.dialog.get(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
        QTest::mouseClick(w.Child<QPushButton>(u"btn_choose"_s), Qt::LeftButton);
        QVERIFY(w.dialog->isVisible());
        QVERIFY(w.Text(u"txt_bericht"_s).startsWith(u"Es wurde 1 Datensatz in die Datenbank importiert."_s));
        QCOMPARE(w.f.Rows(u"SELECT COUNT(*) FROM HEFTLIST;"_s), u"3"_s);

        QTest::keyClick(w.dialog.get(), Qt::Key_Space);
        QVERIFY(w.dialog->isVisible());
        QTest::keyClick(w.dialog.get(), Qt::Key_Escape);
        QVERIFY(!w.dialog->isVisible());

        // The menu command opens the window modally.
        ModalScript script(u"frm_import"_s);
        script.Then([](QDialog& dialog) { dialog.reject(); });
        InstallImportWindow(w.window);
        w.window.Command(u"mnu_import"_s)->trigger();
        QCOMPARE(script.opened, 1);
    }
};

HEFT_TEST(TestImportWindow)
#include "tst_importwindow.moc"
