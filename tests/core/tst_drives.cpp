// The archive CD is told apart from other volumes by file system and label.

#include "testmain.h"

#include "core/drives.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

Q_DECLARE_METATYPE(heft::Volume)

class TestDrives : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findArchiveDrive_data()
    {
        QTest::addColumn<QList<Volume>>("volumes");
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("lastLabel");
        const Volume disk{u"/"_s, u"VALDORIN_1"_s, u"ext4"_s};
        const Volume music{u"/media/cd0/"_s, u"MUSIK"_s, u"iso9660"_s};
        const Volume first{u"/media/cd1/"_s, u"VALDORIN_1"_s, u"iso9660"_s};
        const Volume second{u"/media/dvd/"_s, u"VN_ARCHIV_2"_s, u"udf"_s};
        QTest::newRow("a hard disk with the label is no CD") << QList<Volume>{disk, music} << QString() << u"MUSIK"_s;
        QTest::newRow("first archive") << QList<Volume>{music, first, second} << u"/media/cd1/"_s << u"VALDORIN_1"_s;
        QTest::newRow("second archive on udf") << QList<Volume>{second, first} << u"/media/dvd/"_s
                                               << u"VN_ARCHIV_2"_s;
    }
    void findArchiveDrive()
    {
        QFETCH(QList<Volume>, volumes);
        QString label;
        QTEST(FindArchiveDrive(volumes, label), "root");
        QTEST(label, "lastLabel");
    }
};

HEFT_TEST(TestDrives)
#include "tst_drives.moc"
