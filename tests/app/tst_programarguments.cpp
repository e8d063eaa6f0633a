// The desktop program's command line: a collection name of one or more
// words, the two requests every program answers, and a mistyped option.

#include "testmain.h"

#include "app/programarguments.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestProgramArguments : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("database");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("err");
        QTest::newRow("name of two words") << QStringList{u"Meine"_s, u"Hefte.mdb"_s} << -1 << u"Meine Hefte.mdb"_s
                                           << QString() << QString();
        QTest::newRow("help after a name") << QStringList{u"VN-TB.mdb"_s, u"-h"_s} << 0 << QString()
                                           << u"heftarium [SAMMLUNG]"_s << QString();
        QTest::newRow("version") << QStringList{u"--version"_s} << 0 << QString() << u"Heftarium 1."_s << QString();
        QTest::newRow("mistyped option") << QStringList{u"--hilfe"_s} << 2 << QString() << QString()
                                         << u"„--hilfe“ gibt es nicht"_s;
    }
    void answers()
    {
        QFETCH(QStringList, arguments);
        const ProgramArguments read = ReadProgramArguments(arguments);
        QString printed, warned;
        QTextStream outStream(&printed), errStream(&warned);
        QTEST(AnswerProgramArguments(read, outStream, errStream), "code");
        outStream.flush();
        errStream.flush();
        QTEST(read.databaseName, "database");
        QFETCH(QString, out);
        QFETCH(QString, err);
        QVERIFY2(out.isEmpty() ? printed.isEmpty() : printed.contains(out), qPrintable(printed));
        QVERIFY2(err.isEmpty() ? warned.isEmpty() : warned.contains(err), qPrintable(warned));
    }
};

HEFT_TEST(TestProgramArguments)
#include "tst_programarguments.moc"
