#include "testmain.h"
#include "testsupport.h"

#include "mainwin/ui/helpwindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

const QString Manual = QStringLiteral(HEFTARIUM_DATA_SOURCES) + u"/help"_s;

// Where the first link to target is shown, in the browser's viewport.
QPoint LinkPosition(QTextBrowser* browser, const QString& target)
{
    for (QTextBlock block = browser->document()->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            if (it.fragment().charFormat().anchorHref() != target)
                continue;
            QTextCursor cursor(browser->document());
            cursor.setPosition(it.fragment().position() + 1);
            return browser->cursorRect(cursor).center();
        }
    }
    return {-1, -1};
}

} // namespace

class TestHelp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findHelpFolder_data()
    {
        QTest::addColumn<QStringList>("indexPages"); // index pages laid out below the root
        QTest::addColumn<QString>("found");          // relative to the root; empty: none
        QTest::newRow("the build tree comes first")
            << QStringList{u"bin/help/index.html"_s, u"share/Quintara/Heftarium/help/index.html"_s} << u"bin/help"_s;
        QTest::newRow("folder without its index page") << QStringList{u"bin/help/liste.html"_s} << QString();
    }
    void findHelpFolder()
    {
        QFETCH(QStringList, indexPages);
        QFETCH(QString, found);
        QTemporaryDir root;
        QDir(root.path()).mkpath(u"bin"_s);
        for (const QString& page : indexPages)
            heft::test::WriteFile(root.filePath(page));
        QCOMPARE(FindHelpFolder(root.filePath(u"bin"_s)), found.isEmpty() ? QString() : root.filePath(found));
    }

    void browsing()
    {
        HelpWindow window(Manual);
        window.ShowPage(u"index.html"_s);
        window.resize(760, 640);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTextBrowser* browser = window.Browser();
        QCOMPARE(browser->source().fileName(), u"index.html"_s);
        auto* back = window.findChild<QAction*>(u"btn_back"_s);
        auto* forward = window.findChild<QAction*>(u"btn_forward"_s);
        auto* home = window.findChild<QAction*>(u"btn_home"_s);
        QVERIFY(!back->isEnabled() && !forward->isEnabled());

        const QPoint link = LinkPosition(browser, u"bearbeiten.html"_s);
        QVERIFY(browser->viewport()->rect().contains(link));
        QTest::mouseClick(browser->viewport(), Qt::LeftButton, {}, link);
        QCOMPARE(browser->source().fileName(), u"bearbeiten.html"_s);
        QVERIFY(browser->toPlainText().contains(u"*** Unbekannt ***"_s));
        QVERIFY(back->isEnabled());

        back->trigger();
        QCOMPARE(browser->source().fileName(), u"index.html"_s);
        QVERIFY(forward->isEnabled());
        forward->trigger();
        QCOMPARE(browser->source().fileName(), u"bearbeiten.html"_s);
        home->trigger();
        QCOMPARE(browser->source().fileName(), u"index.html"_s);
    }

    // The help command opens one window and brings it back on a second call.
    void oneWindow()
    {
        ShowHelp(nullptr);
        ShowHelp(nullptr, u"bearbeiten.html"_s);
        QList<HelpWindow*> open;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* help = qobject_cast<HelpWindow*>(window))
                open << help;
        QCOMPARE(open.size(), 1);
        QCOMPARE(open[0]->Browser()->source().fileName(), u"bearbeiten.html"_s);
        delete open[0];
    }
};

HEFT_TEST(TestHelp)
#include "tst_help.moc"
