// The picture and archive commands on the shipped sample: the data folder
// is found from the collection's place, and the search fills its list
// without a window.

#include "testmain.h"

#include "cli/clicommands.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestCliPictures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sample_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("ending");
        QTest::newRow("cover") << QStringList{u"picture"_s, u"1"_s} << u"tibis/Valdorin (Heftromane)/1tibi.jpg\n"_s;
        QTest::newRow("archive page") << QStringList{u"archive"_s, u"page"_s, u"1"_s}
                                      << u"Archiv/HEFTE/HEFT0001.HTM\n"_s;
        QTest::newRow("keyword search") << QStringList{u"archive"_s, u"search"_s, u"--word"_s, u"Anselm"_s,
                                                       u"Nr:KLEINER:5"_s}
                                        << u"(1 Eintrag gefiltert)\n1\n2\n3\n"_s;
    }
    void sample()
    {
        QFETCH(QStringList, words);
        QFETCH(QString, ending);
        QString printed, errors;
        QTextStream out(&printed), err(&errors);
        const QString db = QStringLiteral(HEFTARIUM_RUNTIME_DIR "/DBs/VN-HR.mdb");
        QCOMPARE(heft::RunCli(QStringList{u"--db"_s, db} + words, out, err), 0);
        out.flush();
        QVERIFY2(printed.endsWith(ending), qPrintable(printed));
    }
};

HEFT_TEST(TestCliPictures)
#include "tst_clipictures.moc"
