// frm_export over a real main window: the first checked format picks the
// save dialog, no format gets the message, a run shows
// its result and leaves the files; a filter list is exported as filtered.

#include "exportfixture.h"
#include "testmain.h"

#include "exchange/ui/exportdialog.h"
#include "filter/ui/filtermode.h"
#include "filter/filterrun.h"
#include "mainwin/ui/mainwindow.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

struct ExportWindow {
    ExportWindow()
    {
        AddExportEntries(collection);
        QDir(collection.session.DataFolder).mkpath(u"export"_s);
        window.LoadList(collection.session);
        InstallFilterMode(window);
    }
    // Answers the save dialog with {export}/Liste plus the suffix it was
    // asked for, or with nothing.
    ExportFileChooser Chooser(bool cancel = false)
    {
        return [this, cancel](QWidget*, const QString&, const QString& folder, const QString& filter,
                              const QString& suffix) {
            askedFilter = filter;
            return cancel ? QString() : QDir(folder).filePath(u"Liste."_s + suffix);
        };
    }
    QString Path(const QString& suffix) const
    {
        return QDir(collection.session.DataFolder).filePath(u"export/Liste"_s + suffix);
    }

    TempCollection collection;
    MainWindow window;
    QString askedFilter; // of the last save dialog
};

void Check(QWidget& dialog, const QString& flags)
{
    const QList<std::pair<QChar, QString>> boxes = {{u'c', u"chk_csv"_s},     {u't', u"chk_text"_s},
                                                    {u'h', u"chk_html"_s},    {u'd', u"chk_details"_s},
                                                    {u'g', u"chk_gelesen"_s}, {u'z', u"chk_zyklus"_s}};
    for (const auto& [flag, name] : boxes)
        Child<QCheckBox>(dialog, name)->setChecked(flags.contains(flag));
}

} // namespace

class TestExportWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void formats_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<bool>("cancel");
        QTest::addColumn<QString>("suffix"); // of the save dialog, empty when none opens
        QTest::addColumn<QString>("result"); // first line of the result box
        QTest::addColumn<QStringList>("files");
        const QString exported = u"Es wurden 3/2 Einträge exportiert."_s;
        QTest::newRow("csv before text") << u"tcd"_s << false << u"dat"_s << exported
                                         << QStringList{u"Liste.dat"_s, u"Liste.txt"_s, u"Liste_Details.dat"_s,
                                                        u"Liste_Details.txt"_s};
        QTest::newRow("html alone") << u"hd"_s << false << u"html"_s << exported
                                    << QStringList{u"Liste.html"_s, u"Liste_Details"_s};
        QTest::newRow("cancelled") << u"t"_s << true << u"txt"_s << u"Keine Export Datei ausgewählt."_s
                                   << QStringList();
        QTest::newRow("no format") << u"dgz"_s << false << QString() << QString() << QStringList();
    }

    void formats()
    {
        QFETCH(QString, flags);
        QFETCH(bool, cancel);
        QFETCH(QString, suffix);
        ExportWindow w;
        ExportDialog dialog(w.window, w.Chooser(cancel));
        dialog.show();
        Check(dialog, flags);
        Child<QPushButton>(dialog, u"btn_choose"_s)->click();

        QTEST(QDir(QFileInfo(w.Path(QString())).path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), "files");
        QCOMPARE(w.askedFilter, suffix.isEmpty() ? QString() : u"Heftarium-Exportdatei (*.%1)"_s.arg(suffix));
        QTEST(Child<QPlainTextEdit>(dialog, u"txt_result"_s)->toPlainText().section(u'\n', 0, 0), "result");
        QCOMPARE(w.collection.prompter.asked.size(), suffix.isEmpty() ? 1 : 0);
        if (suffix.isEmpty())
            QCOMPARE(w.collection.prompter.asked.first().text,
                     u"Bitte Export-Format auswählen.\r\n\r\n(CSV | TEXT | HTML)"_s);
        else if (!cancel)
            QCOMPARE(w.window.StatusPanelText(5), u"Fertig und Bereit."_s);
    }

    // Opened by the menu command, modal, on the filter list when a filter
    // is in force; Esc closes it only when no export runs.
    void filterListFromMenu()
    {
        ExportWindow w;
        EntryList& list = w.window.List();
        QVERIFY(RunFilterStatement(w.collection.session, list, u"SELECT * FROM HEFTLIST WHERE Nr>1 ORDER BY Nr;"_s) ==
                2);
        list.ShowFilterGrid(true);
        FilterStateOf(w.window)->FilterText = u"Nr größer als 1 "_s;
        InstallExportWindow(w.window, w.Chooser());

        bool opened = false, closedByEsc = false, disabledWhileBusy = false, openWhileBusy = false;
        QTimer::singleShot(0, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            opened = dialog && dialog->objectName() == u"frm_export";
            if (!opened)
                return;
            Check(*dialog, u"tg"_s);
            // While the export runs the window is off and stays open.
            QTimer::singleShot(0, [&, dialog] {
                disabledWhileBusy = !dialog->isEnabled();
                dialog->close();
                QTest::keyClick(dialog, Qt::Key_Escape);
                openWhileBusy = dialog->isVisible();
            });
            Child<QPushButton>(*dialog, u"btn_choose"_s)->click();
            QTest::keyClick(dialog, Qt::Key_Escape);
            closedByEsc = !dialog->isVisible();
        });
        w.window.Command(u"mnu_export"_s)->trigger();
        QVERIFY(opened);
        QVERIFY(disabledWhileBusy);
        QVERIFY(openWhileBusy);
        QVERIFY(closedByEsc);
        const QStringList text = FileLines(w.Path(u".txt"_s));
        QCOMPARE(text.size(), 2 + 2 + 2);
        QCOMPARE(text.last(), u"Valdorin Heftromane gefiltert nach: Nr größer als 1  (2 Einträge)"_s);
    }
};

HEFT_TEST(TestExportWindow)
#include "tst_exportwindow.moc"
