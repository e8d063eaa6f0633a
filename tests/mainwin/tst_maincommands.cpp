// The main window's commands: deleting, what is off, and the window's place.

#include "testmain.h"
#include "testsupport.h"

#include "mainwin/ui/mainwindow.h"
#include "mainwin/twips.h"

#include <QAction>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

class TestMainCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void deleteAsksAndRemoves()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"Eins"_s}, {2, u"B"_s, u"Zwei"_s}, {3, u"C"_s, u"Drei"_s}});
        c.Exec(u"INSERT INTO Details (Nr, Untertitel) VALUES (2, 'weg');"_s);
        MainWindow window;
        window.LoadList(c.session);
        window.List().FindAndShowRow(2);
        // Commands whose windows are not part of the program yet stay off.
        QVERIFY(!window.Command(u"mnu_detail"_s)->isEnabled() && !window.Command(u"zykinfo"_s)->isEnabled());

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
        window.DisableEntryCommands();
        QVERIFY(!window.Command(u"mnu_delete"_s)->isEnabled() && window.Command(u"mnu_Beenden"_s)->isEnabled());
    }

    void closingWritesThePlacement()
    {
        TempCollection c;
        c.Add({{1, u"A"_s, u"T"_s}});
        {
            MainWindow window;
            window.LoadList(c.session);
            // One entry is too few for a statistic.
            window.StatisticsClick([] { QFAIL("statistics over one entry"); });
            QCOMPARE(c.prompter.asked.value(0).title, u"Dezenter Hinweis"_s);
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
