#include "testmain.h"

#include "core/log.h"
#include "core/placement.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

namespace {

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestLog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void entry_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("info") << 0 << u"Programmdaten in /home/ä"_s
                              << "[Info]\r\nProgrammdaten in /home/\xc3\xa4\r\n"_ba;
        QTest::newRow("config") << 10 << u"FB=1\r\nFH=2"_s << "\r\n[Konfig]\r\nFB=1\r\nFH=2\r\n"_ba;
        QTest::newRow("line breaks become CR LF")
            << -1 << u"Beschreibung\nSELECT 1;\rEnde"_s
            << "DELETE FROM HEFTLIST;\r\n[Fehler -1]\r\nBeschreibung\r\nSELECT 1;\r\nEnde\r\n"_ba;
    }
    void entry()
    {
        QFETCH(int, code);
        QFETCH(QString, text);
        QTemporaryDir dir;
        const Log log(dir.filePath(u"Heftarium.log"_s));
        log.Write(code, text, u"DELETE FROM HEFTLIST;"_s);
        QTEST(ReadAll(log.Path()), "expected");
    }

    // The placement written at exit is read back on the next start. The
    // screen is 20000 x 15000 twips; the default is 9000 x 6000 at 100/200.
    void placement_data()
    {
        QTest::addColumn<QByteArray>("log");
        QTest::addColumn<QList<int>>("expected");
        const QList<int> unchanged = {9000, 6000, 100, 200};
        QTest::newRow("all taken") << "[Konfig]\r\nFB=12000\r\nFH=8000\r\nFX=300\r\nFY=400\r\n"_ba
                                   << QList<int>{12000, 8000, 300, 400};
        QTest::newRow("too narrow") << "[Konfig]\r\nFB=8999\r\n"_ba << unchanged;
        QTest::newRow("wider than the screen") << "[Konfig]\r\nFB=20001\r\n"_ba << unchanged;
        QTest::newRow("left keeps the new width on screen")
            << "[Konfig]\r\nFB=15000\r\nFX=5001\r\nFY=9000\r\n"_ba << QList<int>{15000, 6000, 100, 9000};
        QTest::newRow("lines before the entry are ignored")
            << "FB=12000\r\n[Info]\r\nstart\r\n\r\n[Konfig]\r\nFY=700\r\n"_ba << QList<int>{9000, 6000, 100, 700};
        QTest::newRow("LF only and trailing text") << "[Konfig]\nFB=9500 twips\nFX=50\n"_ba
                                                   << QList<int>{9500, 6000, 50, 200};
    }
    void placement()
    {
        QFETCH(QByteArray, log);
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Heftarium.old"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(log);
        file.close();

        WindowPlacement placement{9000, 6000, 100, 200};
        ReadPlacementFromLog(path, 20000, 15000, placement);
        QTEST((QList<int>{placement.width, placement.height, placement.left, placement.top}), "expected");
    }
};

HEFT_TEST(TestLog)
#include "tst_log.moc"
