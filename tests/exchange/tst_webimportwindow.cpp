// frm_webimport and btn_webupdate of frm_import, driven for real: range box rules, a web import.

#include "importfixture.h"
#include "support/wikifixtureserver.h"
#include "testmain.h"

#include "exchange/ui/importwindow.h"
#include "exchange/ui/webimportwindow.h"
#include "mainwin/ui/mainwindow.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

class TestWebImportWindow : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rangeBoxes()
    {
        // The end of the decade after the last entry, cut by Val at the decimal comma.
        QCOMPARE(InitialWebRange(2409).start + u'-' + InitialWebRange(2409).end, u"2410-2419"_s);
        WebImportWindow dialog(nullptr, 2400);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        auto* start = dialog.findChild<QLineEdit*>(u"txt_start"_s);
        start->setFocus();
        start->selectAll();
        QTest::keyClicks(start, u"17x9,9"_s);
        QCOMPARE(start->text(), u"1799"_s);
        QTest::keyClick(start, Qt::Key_Tab); // leaving the box forces the first wiki issue
        QCOMPARE(start->text(), u"1800"_s);
    }

    void webUpdate()
    {
        ImportFixture f;
        WikiFixtureServer server;
        server.ServeSampleSite();
        qputenv("HEFTARIUM_WIKI_URL", server.Url().toUtf8());
        qputenv("HEFTARIUM_PUBLISHER_URL", server.Url().toUtf8());
        f.collection.session.Config.PictureRoot = f.collection.dir.filePath(u"bilder"_s);
        MainWindow window;
        window.LoadList(f.collection.session);
        ImportWindow dialog(window);
        dialog.show();
        auto* button = dialog.findChild<QPushButton*>(u"btn_webupdate"_s);
        QVERIFY(button->isEnabled());
        // The range 2401-2404, then Esc or Enter.
        const auto answerRange = [](int key) {
            QTimer::singleShot(0, [=] {
                QWidget* range = QApplication::activeModalWidget();
                auto* start = range->findChild<QLineEdit*>(u"txt_start"_s);
                start->setText(u"2401"_s);
                range->findChild<QLineEdit*>(u"txt_end"_s)->setText(u"2404"_s);
                QTest::keyClick(start, Qt::Key(key));
            });
        };
        answerRange(Qt::Key_Escape);
        button->click();
        QCOMPARE(dialog.findChild<QPlainTextEdit*>(u"txt_bericht"_s)->toPlainText(), u"Kein Web-Import Bereich ausgewählt."_s);

        answerRange(Qt::Key_Enter);
        button->click();
        QCOMPARE(dialog.findChild<QPlainTextEdit*>(u"txt_fehler"_s)->toPlainText(), u"Probleme beim Netz-Import für #2404 (URL öffnen)!"_s);
        QCOMPARE(window.StatusPanelText(5), u"Fertig mit Fehlern."_s);
    }
};

HEFT_TEST(TestWebImportWindow)
#include "tst_webimportwindow.moc"
