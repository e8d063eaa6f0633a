#include "testmain.h"
#include "testsupport.h"

#include "core/config.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;
using heft::test::TempCollection;

class TestConfig : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void longValuesAreCut()
    {
        TempCollection collection;
        const QString series = u"Valdorin – Die große Sammelausgabe"_s; // 34 characters
        const QString logo = QString(140, u'l').left(130) + u".svg"_s;
        collection.Exec(u"DELETE FROM KONFIGURATION;"_s);
        collection.Exec(u"INSERT INTO KONFIGURATION VALUES ('%1', 'Taschenbücher', '%2', NULL);"_s.arg(series, logo));
        collection.session.Config.SplashFile = u"bleibt.svg"_s;
        DbError error;
        QVERIFY(ReadConfiguration(collection.session, &error));
        QCOMPARE(collection.session.Config.SeriesName, series.left(32));
        QCOMPARE(collection.session.Config.ListKind, u"Taschenbücher"_s);
        QCOMPARE(collection.session.Config.LogoFile, logo.left(128));
        QCOMPARE(collection.session.Config.SplashFile, u"bleibt.svg"_s);
    }

    void emptyOrMissingKonfiguration()
    {
        TempCollection collection;
        collection.session.Config = Configuration{};
        collection.Exec(u"DELETE FROM KONFIGURATION;"_s);
        DbError error;
        QVERIFY(ReadConfiguration(collection.session, &error));
        QVERIFY(collection.session.Config.SeriesName.isEmpty());

        collection.Exec(u"DROP TABLE KONFIGURATION;"_s);
        QVERIFY(!ReadConfiguration(collection.session, &error));
        QVERIFY(error.number != 0);
    }

    // Rows as "key, value"; the shipped rows for keys 1 and 2 are removed.
    void parameters_data()
    {
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("maxAuflage");
        QTest::addColumn<int>("contentLimit");
        QTest::addColumn<QString>("pictureRoot");
        QTest::addColumn<QString>("archiveRoot");
        QTest::newRow("numbers read like Val") << QStringList{u"1, ' 7 Stück'"_s, u"2, '1000,5'"_s} << 7 << 1000
                                               << QString() << QString();
        QTest::newRow("too large for its variable")
            << QStringList{u"1, '256'"_s, u"2, '40000'"_s} << 5 << 255 << QString() << QString();
        QTest::newRow("folders") << QStringList{u"3, '/mnt/bilder'"_s, u"4, '/media/archiv'"_s} << 5 << 255
                                 << u"/mnt/bilder"_s << u"/media/archiv"_s;
        QTest::newRow("other keys and Null ignored")
            << QStringList{u"5, '3'"_s, u"0, '3'"_s, u"NULL, '3'"_s, u"1, NULL"_s} << 5 << 255 << QString() << QString();
        QTest::newRow("no parameter table") << QStringList() << 5 << 255 << QString() << QString();
        QTest::newRow("last row wins") << QStringList{u"1, '3'"_s, u"1, '4'"_s} << 4 << 255 << QString()
                                       << QString();
    }
    void parameters()
    {
        QFETCH(QStringList, rows);
        QFETCH(QString, pictureRoot);
        QFETCH(QString, archiveRoot);
        TempCollection collection;
        collection.Exec(rows.isEmpty() ? u"DROP TABLE Parameter;"_s : u"DELETE FROM Parameter;"_s);
        collection.session.Config.MaxAuflage = 9;
        for (const QString& row : rows) {
            const QStringList parts = row.split(u", "_s);
            collection.Exec(u"INSERT INTO Parameter VALUES (%1, 'Test', %2);"_s.arg(parts[0], parts[1]));
        }
        ReadParameters(collection.session);
        const Configuration& config = collection.session.Config;
        const QString dataFolder = collection.session.DataFolder;
        QTEST(config.MaxAuflage, "maxAuflage");
        QTEST(config.ContentLimit, "contentLimit");
        QCOMPARE(config.PictureRoot, pictureRoot.isEmpty() ? dataFolder : pictureRoot);
        QCOMPARE(config.ArchiveRoot, archiveRoot.isEmpty() ? dataFolder : archiveRoot);
    }
};

HEFT_TEST(TestConfig)
#include "tst_config.moc"
