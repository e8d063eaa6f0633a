// The main window's commands as the user meets them: menu and toolbar, what
// is off, deleting, the hints, and the window's place from the last run.

#include "testmain.h"
#include "testsupport.h"

#include "mainwin/ui/mainwindow.h"
#include "mainwin/twips.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <QToolBar>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

namespace {

void WriteOldLog(const TempCollection& c, const QString& konfig)
{
    QFile log(c.session.DataFolder + u"/Heftarium.old"_s);
    QVERIFY(log.open(QIODevice::WriteOnly));
    log.write((u"[Info]\r\nV1.0.0\r\n"_s + konfig).toUtf8());
}

QStringList MenuItems(QMenu* menu)
{
    QStringList items;
    for (QAction* action : menu->actions())
        items << (action->isSeparator() ? u"---"_s
                                        : action->text() + u'|' + action->shortcut().toString(QKeySequence::PortableText));
    return items;
}

} // namespace

class TestMainCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void menusAndToolbarAsTheUserSeesThem()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}, {2, u"B"_s, u"U"_s}});
        MainWindow window;
        window.LoadList(c.session);
        auto* bearbeiten = window.findChild<QMenu*>(u"mnu_bearbeiten"_s);
        QVERIFY(bearbeiten);
        QCOMPARE(MenuItems(bearbeiten),
                 (QStringList{u"Ände&rn|Ctrl+R"_s, u"&Einfügen|Ctrl+E"_s, u"---"_s, u"&Löschen|Ctrl+L"_s, u"---"_s,
                              u"---"_s, u"De&tail Bearbeiten|Ctrl+T"_s, u"Detail &Anzeigen|Ctrl+A"_s}));
        QCOMPARE(MenuItems(window.findChild<QMenu*>(u"mnu_Datei"_s)),
                 (QStringList{u"Programm&Info|Ctrl+I"_s, u"&ZyklusInfo|Ctrl+Z"_s, u"---"_s, u"&Hilfe|Ctrl+H"_s,
                              u"---"_s, u"&Beenden|Ctrl+B"_s}));
        QCOMPARE(MenuItems(window.findChild<QMenu*>(u"mnu_data"_s)),
                 (QStringList{u"Daten Import ...|Ctrl+F1"_s, u"---"_s, u"Daten Export ...|Ctrl+F2"_s}));
        QStringList titles;
        for (QAction* menu : window.menuBar()->actions())
            titles << menu->text();
        QCOMPARE(titles, (QStringList{u"Datei"_s, u"Bearbeiten"_s, u"Suchen"_s, u"Ausgabe"_s, u"Daten"_s,
                                      u"Sonderfunktionen"_s}));
        auto* toolbar = window.findChild<QToolBar*>(u"tbar_user"_s);
        QStringList keys;
        for (QAction* action : toolbar->actions())
            keys << (action->isSeparator() ? u"|"_s : action->objectName());
        QCOMPARE(keys.join(u' '), u"edit insert delete | goto filter | stat print | import export | zykinfo | info "
                                  "help quit"_s);
        QCOMPARE(window.Command(u"goto"_s)->toolTip(), u"Gehe zu Eintrag Numero ..."_s);
        QCOMPARE(window.Command(u"goto"_s)->text(), u"Finde &Nr"_s);
        QVERIFY(window.Command(u"filter"_s)->isCheckable());
    }

    // Commands whose windows are not part of the program yet stay off; the
    // others follow the entry commands.
    void whatIsOn_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("enabled");
        QTest::newRow("delete") << u"mnu_delete"_s << true;
        QTest::newRow("quit") << u"mnu_Beenden"_s << true;
        QTest::newRow("details") << u"mnu_detail"_s << false;
        QTest::newRow("print") << u"print"_s << false;
        QTest::newRow("cycles without a window") << u"zykinfo"_s << false;
        QTest::newRow("import") << u"mnu_import"_s << false;
    }
    void whatIsOn()
    {
        QFETCH(QString, command);
        QFETCH(bool, enabled);
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}, {2, u"B"_s, u"U"_s}});
        MainWindow window;
        window.LoadList(c.session);
        QCOMPARE(window.Command(command)->isEnabled(), enabled);
        window.DisableEntryCommands();
        QVERIFY(!window.Command(u"mnu_delete"_s)->isEnabled());
        QVERIFY(window.Command(u"mnu_Beenden"_s)->isEnabled());
    }

    void deleteAsksAndRemoves()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"Eins"_s}, {2, u"B"_s, u"Zwei"_s}, {3, u"C"_s, u"Drei"_s}});
        c.Exec(u"INSERT INTO Details (Nr, Untertitel) VALUES (2, 'weg');"_s);
        MainWindow window;
        window.LoadList(c.session);
        window.List().FindAndShowRow(2);

        c.prompter.answers = {Answer::Cancel};
        window.Command(u"mnu_delete"_s)->trigger();
        QCOMPARE(c.prompter.asked.value(0).title, u"Sicherheits Rückfrage"_s);
        QCOMPARE(c.prompter.asked.value(0).text, u"Willst Du Ausgabe Nr. 2:\n\n\"Zwei\"\n\nwirklich löschen?\r"_s);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt(), 3);

        c.prompter.answers = {Answer::Ok};
        window.Command(u"delete"_s)->trigger();
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt(), 2);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM Details;"_s).toInt(), 0);
        QCOMPARE(window.List().Heftliste.Rows(), 3);
        QCOMPARE(window.List().FindAndShowRow(2), -1);
    }

    void lastEntryAndStatisticsHints()
    {
        TempCollection c;
        c.Add({{5, u"A"_s, u"Eins"_s}});
        MainWindow window;
        window.LoadList(c.session);
        window.Command(u"mnu_delete"_s)->trigger();
        QCOMPARE(c.prompter.asked.size(), 1);
        QCOMPARE(c.prompter.asked[0].title, u"Dezenter Hinweis"_s);
        QCOMPARE(c.prompter.asked[0].text, u"Der allerletzte Listeneintrag\rkann nicht gelöscht werden."_s);
        QCOMPARE(c.Value(u"SELECT COUNT(*) FROM HEFTLIST;"_s).toInt(), 1);

        bool opened = false;
        window.StatisticsClick([&] { opened = true; });
        QVERIFY(!opened);
        QCOMPARE(c.prompter.asked.value(1).text,
                 u"Für eine aussagekräftige Statistik\rsollten zumindest 2 Einträge in der\rListe vorhanden sein."_s);
    }

    void missingDetailsTableSwitchesDetailsOff()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}});
        c.Exec(u"DROP TABLE Details;"_s);
        MainWindow window;
        window.LoadList(c.session);
        QVERIFY(!window.IsCommandEnabled(u"mnu_detail"_s));
        QFile log(c.session.log.Path());
        QVERIFY(log.open(QIODevice::ReadOnly));
        QVERIFY(QString::fromUtf8(log.readAll()).contains(u"Fehler beim Öffnen der Detail DB: "_s));
    }

    // The window opens just wide enough for its toolbar, centred, unless the
    // last run's log says better. Expected values are twips, -1 = default.
    void placementFromTheLastRun_data()
    {
        QTest::addColumn<QString>("konfig");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("top");
        const QString konfig = u"\r\n[Konfig]\r\n"_s;
        QTest::newRow("too narrow, left 0: default") << konfig + u"FB=100\r\nFX=0\r\n"_s << -1 << -1;
        QTest::newRow("height and top") << konfig + u"FH=4005\r\nFY=300\r\n"_s << 4005 << 300;
        QTest::newRow("too low a height") << konfig + u"FH=2400\r\nFY=300\r\n"_s << -1 << 300;
        QTest::newRow("top 0 ignored") << konfig + u"FH=4005\r\nFY=0\r\n"_s << 4005 << -1;
        QTest::newRow("lines without a Konfig entry") << u"FH=4005\r\nFY=300\r\n"_s << -1 << -1;
    }
    void placementFromTheLastRun()
    {
        QFETCH(QString, konfig);
        QFETCH(int, height);
        QFETCH(int, top);
        QRect defaultGeometry;
        {
            TempCollection c;
            c.Add({{1, u"A"_s, u"T"_s}});
            MainWindow window;
            window.LoadList(c.session);
            defaultGeometry = QRect(window.pos(), window.size());
            const int toolbarWidth = window.findChild<QToolBar*>(u"tbar_user"_s)->sizeHint().width();
            QVERIFY(window.width() >= qMin(toolbarWidth, window.screen()->availableGeometry().width()));
        }
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}});
        WriteOldLog(c, konfig);
        MainWindow window;
        window.LoadList(c.session);
        QCOMPARE(window.width(), defaultGeometry.width());
        QCOMPARE(window.x(), defaultGeometry.x());
        QCOMPARE(window.height(), height < 0 ? defaultGeometry.height() : TwipsToPixels(height));
        QCOMPARE(window.y(), top < 0 ? defaultGeometry.y() : TwipsToPixels(top));
    }

    void closingWritesThePlacement()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}});
        {
            MainWindow window;
            window.LoadList(c.session);
            window.resize(700, 500);
            window.close();
        }
        QVERIFY(!c.session.CollectionDb);
        QFile log(c.session.log.Path());
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(log.readAll());
        QVERIFY2(text.contains(u"\r\n[Konfig]\r\nFB=%1\r\nFH=%2\r\n"_s.arg(PixelsToTwips(700)).arg(PixelsToTwips(500))),
                 qPrintable(text));
    }
};

HEFT_TEST(TestMainCommands)
#include "tst_maincommands.moc"
