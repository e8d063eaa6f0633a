#include "testmain.h"
#include "testsupport.h"

#include "mainwin/ui/helpwindow.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;
using namespace heft;

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
        // The second page went into the window's history.
        open[0]->findChild<QAction*>(u"btn_back"_s)->trigger();
        QCOMPARE(open[0]->Browser()->source().fileName(), u"index.html"_s);
        delete open[0];
    }
};

HEFT_TEST(TestHelp)
#include "tst_help.moc"
