// The picture store and the archive link on real folders: temporary folders
// play the store, the archive copy and the CD, whose label comes with the
// drive list handed in.

#include "testmain.h"
#include "testsupport.h"

#include "core/pathresolve.h"
#include "details/archivelink.h"
#include "details/picturestore.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using namespace heft::test;

class TestPictureStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void drop_data()
    {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("page");
        QTest::addColumn<QList<Answer>>("answers");
        QTest::addColumn<QString>("target"); // empty: nothing copied
        QTest::addColumn<int>("messages");
        QTest::newRow("upper-case extension") << u"SCAN.BMP"_s << u"rize"_s << QString() << QList<Answer>()
                                              << u"rizes/7rize.bmp"_s << 1;
        QTest::newRow("gif is refused") << u"scan.gif"_s << u"tibi"_s << QString() << QList<Answer>() << QString() << 0;
        QTest::newRow("page 0 ends the drop") << u"scan.jpg"_s << u"illu"_s << u"0"_s << QList<Answer>() << QString() << 0;
        QTest::newRow("overwrite agreed") << u"scan.jpg"_s << u"tibi"_s << QString() << QList<Answer>{Answer::Ok}
                                          << u"tibis/3tibi.jpg"_s << 2;
        // Cancel spares the deletion and the closing message, not the copy.
        QTest::newRow("overwrite cancelled") << u"scan.jpg"_s << u"tibi"_s << QString()
                                             << QList<Answer>{Answer::Cancel} << u"tibis/3tibi.jpg"_s << 1;
    }
    void drop()
    {
        QFETCH(QString, source);
        QFETCH(QString, kind);
        QFETCH(QString, page);
        QFETCH(QList<Answer>, answers);
        QFETCH(QString, target);
        TempCollection collection;
        collection.session.Config.PictureRoot = collection.dir.path();
        collection.prompter.answers = answers;
        // A cover of entry 3 is there already, in a folder of other case.
        WriteFile(collection.dir.filePath(u"TIBIS/valdorin (HEFTROMANE)/3TIBI.JPG"_s), "old");
        const QString from = collection.dir.filePath(source);
        WriteFile(from, "new");
        const int nr = answers.isEmpty() ? 7 : 3;
        const DropOutcome outcome = DropPicture(collection.session, nr, kind, from, [&] { return PageFromAnswer(page); });
        QTEST(int(collection.prompter.asked.size()), "messages");
        QCOMPARE(outcome.copied, !target.isEmpty());
        if (target.isEmpty())
            return;
        const QString folder = target.section(u'/', 0, 0);
        const QString expected = ResolvePath(collection.dir.path(), folder + u"/Valdorin (Heftromane)/"_s +
                                                                        target.section(u'/', 1));
        QCOMPARE(outcome.target, expected);
        QFile copied(expected);
        QVERIFY(copied.open(QIODevice::ReadOnly));
        QCOMPARE(copied.readAll(), "new");
    }

    void illustrationListTakesOneExtension()
    {
        TempCollection collection;
        Configuration& config = collection.session.Config;
        config.PictureRoot = collection.dir.path();
        const QString folder = collection.dir.filePath(u"illus/Valdorin (Heftromane)/"_s);
        for (const QString& name : {u"5illu002.bmp"_s, u"5illu009.jpg"_s, u"5illu010.bmp"_s, u"5illu011.bmp"_s,
                                    u"15illu001.jpg"_s, u"6illu001.gif"_s, u"6illu004.GIF"_s})
            WriteFile(folder + name);
        QCOMPARE(IllustrationPages(config, 5), QStringList{u"009"_s});
        QCOMPARE(IllustrationPages(config, 6), (QStringList{u"001"_s, u"004"_s}));
        QVERIFY(IllustrationPages(config, 7).isEmpty());
        QCOMPARE(IllustrationListHeight(3), 615);
        QCOMPARE(IllustrationListHeight(8), 1200);
    }

    void pathsStayInTheirFolder()
    {
        QCOMPARE(ResolvePath(u"/data"_s, u"../etc/passwd"_s), QString());
        QCOMPARE(ResolvePath(u"/data"_s, u"Archiv\\..\\..\\x"_s), QString());
        QCOMPARE(ResolvePath(u"/data"_s, u"/etc/passwd"_s), QString());
        QCOMPARE(ResolvePath(u"/data/"_s, u"Archiv\\HEFTE\\HEFT0001.HTM"_s), u"/data/Archiv/HEFTE/HEFT0001.HTM"_s);
    }

    void archiveLink_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<int>("nr");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("opened");
        QTest::addColumn<QStringList>("titles");
        const QString prompt = u"CD-Rom einlegen"_s;
        QTest::newRow("beyond CD I") << u"Heftromane"_s << 1851 << u"VALDORIN_1"_s
                                     << QStringList{u"Archiv/HEFTE/HEFT1851.HTM"_s} << QString()
                                     << QStringList{u"Info zum Datenumfang der Archiv CD"_s};
        QTest::newRow("no CD, copy of CD II") << u"Heftromane"_s << 1851 << QString()
                                              << QStringList{u"archiv/hefte/heft1851.htm"_s}
                                              << u"archiv/hefte/heft1851.htm"_s << QStringList();
        QTest::newRow("audio CD, copy of CD I") << u"Heftromane"_s << 150 << u"MUSIK"_s
                                                << QStringList{u"Archiv/SEITEN/H100/150.htm"_s}
                                                << u"Archiv/SEITEN/H100/150.htm"_s << QStringList();
        QTest::newRow("books on CD I share a page") << u"Taschenbücher"_s << 99 << u"VALDORIN_1"_s
                                                    << QStringList{u"CD/HTML/SEITEN/BUECHER/TBs.htm"_s}
                                                    << u"CD/HTML/SEITEN/BUECHER/TBs.htm"_s << QStringList();
        QTest::newRow("the copy wins over the CD") << u"Heftromane"_s << 7 << u"VN_ARCHIV_2"_s
                                                   << QStringList{u"CD/HEFTE/HEFT0007.HTM"_s,
                                                                  u"Archiv/HEFTE/HEFT0007.HTM"_s}
                                                   << u"Archiv/HEFTE/HEFT0007.HTM"_s << QStringList();
        QTest::newRow("page nowhere") << u"Heftromane"_s << 7 << u"VN_ARCHIV_2"_s << QStringList() << QString()
                                      << QStringList{prompt, prompt};
    }
    void archiveLink()
    {
        QFETCH(QString, list);
        QFETCH(int, nr);
        QFETCH(QString, label);
        QFETCH(QStringList, files);
        QFETCH(QString, opened);
        QFETCH(QStringList, titles);
        TempCollection collection(u"Valdorin"_s, list);
        collection.session.Config.ArchiveRoot = collection.dir.path();
        for (const QString& file : files)
            WriteFile(collection.dir.filePath(file));
        // Retry once, then give up.
        collection.prompter.answers = {Answer::Retry, Answer::Cancel};
        RecordingOpener opener;
        QStringList statuses;
        const QList<Volume> drives{{collection.dir.filePath(u"CD/"_s), label, u"iso9660"_s}};
        ArchiveLinkClick(collection.session, nr,
                         {[&] { return drives; }, &opener, [&](const QString& text) { statuses << text; }});
        QCOMPARE(opener.opened, opened.isEmpty() ? QStringList() : QStringList{collection.dir.filePath(opened)});
        QStringList asked;
        for (const Message& message : collection.prompter.asked)
            asked << message.title;
        QCOMPARE(asked, titles);
        if (!opened.isEmpty() || titles.size() > 1)
            QCOMPARE(statuses.last(), u"Fertig und Bereit."_s);
    }
};

HEFT_TEST(TestPictureStore)
#include "tst_picturestore.moc"
