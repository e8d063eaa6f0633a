// The print command end to end on the shipped collection: the PDF read back
// with pdfinfo and pdftotext, as a user would look at it.

#include "testmain.h"

#include "clirun.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString Tool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

class TestCliPrint : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QDir shipped(QStringLiteral(HEFTARIUM_RUNTIME_DIR));
        QDir(m_dir.path()).mkpath(u"DBs"_s);
        QDir(m_dir.path()).mkpath(u"bm"_s);
        QVERIFY(QFile::copy(shipped.filePath(u"DBs/Heftarium.mdb"_s), m_dir.filePath(u"DBs/Heftarium.mdb"_s)));
        QVERIFY(QFile::copy(shipped.filePath(u"bm/Logo.svg"_s), m_dir.filePath(u"bm/Logo.svg"_s)));
    }

    void printToPdf_data()
    {
        QTest::addColumn<QStringList>("words"); // behind "print"
        QTest::addColumn<QString>("size");
        QTest::addColumn<QStringList>("lines"); // pdftotext lines, blanks squeezed
        QTest::newRow("first matrix page")
            << QStringList{u"matrix"_s, u"--to"_s, u"99"_s} << u"595 x 842 pts (A4)"_s
            << QStringList{u"1-99"_s, u"1 2 3 4 5 6 7 8 9"_s, u"10 11 12 13 14 15 16 17 18 19"_s,
                           u"90 91 92 93 94 95 96 97 98 99"_s};
        QTest::newRow("list in landscape")
            << QStringList{u"list"_s, u"--landscape"_s} << u"842 x 595 pts (A4)"_s
            << QStringList{u"Nr Autor Titel AL Zyklus GL Bemerkung"_s, u"Valdorin Heftromane Nummer 1-"_s};
        QTest::newRow("filter list")
            << QStringList{u"filter"_s, u"Nr:KLEINER:11"_s} << u"595 x 842 pts (A4)"_s
            << QStringList{u"Valdorin Heftromane gefiltert nach: Nummer kleiner als 11"_s, u"Seite 1 von 1"_s};
    }

    void printToPdf()
    {
        QFETCH(QStringList, words);
        const QString pdf = m_dir.filePath(u"seiten.pdf"_s);
        const heft::test::CliRun run = heft::test::RunCliWith(
            QStringList{u"--db"_s, m_dir.filePath(u"DBs/Heftarium.mdb"_s), u"print"_s} + words +
            QStringList{u"--pdf"_s, pdf});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        const QString pages = QRegularExpression(u"Seiten: (\\d+)"_s).match(run.out).captured(1);
        const QString info = Tool(u"pdfinfo"_s, {pdf});
        QVERIFY2(info.contains(QRegularExpression(u"Pages: +%1\n"_s.arg(pages))), qPrintable(info + run.out));
        QFETCH(QString, size);
        QVERIFY2(info.contains(size), qPrintable(info));
        QStringList squeezed;
        for (const QString& line : Tool(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s}).split(u'\n'))
            squeezed << line.simplified();
        QFETCH(QStringList, lines);
        for (const QString& line : lines)
            QVERIFY2(squeezed.filter(line).size() > 0, qPrintable(line + u"\n"_s + squeezed.join(u'\n')));
    }

private:
    QTemporaryDir m_dir;
};

HEFT_TEST(TestCliPrint)
#include "tst_cliprint.moc"
