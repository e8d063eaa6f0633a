#include "testmain.h"
#include "testsupport.h"

#include "exchange/datfile.h"
#include "exchange/datformat.h"
#include "exchange/datreader.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestDatReader : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void listFields_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("autor");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<int>("auflage");
        QTest::addColumn<QString>("zyklus");
        QTest::addColumn<bool>("gelesen");
        QTest::addColumn<QString>("bemerkung");

        // A text one character beyond its limit is cut to it; the cycle is
        // cut before it is tested for a roman numeral.
        QTest::newRow("texts one beyond their limits")
            << line(QString(26, u'a'), QString(51, u't'), u"1"_s, u"mmmdcccl9"_s, u"Ja"_s, QString(65, u'b'))
            << QString(25, u'a') << QString(50, u't') << 1 << u"MMMDCCCL"_s << true << QString(64, u'b');
        QTest::newRow("digits are no cycle") << line(u"A"_s, u"T"_s, u"2"_s, u"14"_s, u"Nein"_s, QString())
                                             << u"A"_s << u"T"_s << 2 << u"- - -"_s << false << QString();
        QTest::newRow("printing above the maximum") << line(u"A"_s, u"T"_s, u"6"_s, u"I"_s, u"x"_s, QString())
                                                    << u"A"_s << u"T"_s << 0 << u"I"_s << false << QString();
        QTest::newRow("printing read by Val") << line(u"A"_s, u"T"_s, u"3. Aufl."_s, u"I"_s, u"x"_s, QString())
                                              << u"A"_s << u"T"_s << 3 << u"I"_s << false << QString();
        QTest::newRow("remark beginning with the separator")
            << line(u"A"_s, u"T"_s, u"1"_s, u"I"_s, u"x"_s, u"\";x"_s) << u"A"_s << u"T"_s << 1 << u"I"_s << false
            << u"\";x\";"_s;
        QTest::newRow("separator inside the title shifts the rest")
            << line(u"A"_s, u"Ti\";\"tel"_s, u"1"_s, u"I"_s, u"Ja"_s, QString()) << u"A"_s << u"Ti"_s << 0
            << u"- - -"_s << false << u"Ja"_s;
    }
    void listFields()
    {
        QFETCH(QString, line);
        ListReader reader;
        const ListRecord& r = reader.Read(line);
        QVERIFY(r.IsGood());
        QTEST(r.Autor, "autor");
        QTEST(r.Titel, "titel");
        QTEST(r.AuflageNumber, "auflage");
        QTEST(r.Zyklus, "zyklus");
        QTEST(r.Gelesen, "gelesen");
        QCOMPARE(r.GL, r.Gelesen ? line.section(u"\";\""_s, 5, 5) : u"Nein"_s);
        QTEST(r.Bemerkung, "bemerkung");
    }

    // A line that ends early keeps the previous line's values in the fields
    // it lacks, and is still good while Nr, Autor and Titel are there.
    void missingTrailingFieldsKeepPreviousValues()
    {
        ListReader reader;
        reader.Read(line(u"A"_s, u"T"_s, u"2"_s, u"iv"_s, u"Ja"_s, u"Gut"_s));
        const ListRecord& r = reader.Read(u"\"2\";\"B\";\"U\";\"3\";"_s);
        QVERIFY(r.IsGood());
        QCOMPARE(r.AuflageNumber, 2);
        QCOMPARE(r.Bemerkung, u"Gut"_s);
    }

    void cycleLines_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("good");
        QTest::addColumn<QStringList>("values");
        // The cycle's limit of nine counts its opening quote.
        QString beyond;
        for (const QString& value : {u"XXXVIIIII"_s, u"123456"_s, u"543210"_s, u"1"_s, u"2"_s, QString(51, u'b'),
                                     QString(51, u'g')})
            beyond += DatField(value);
        QTest::newRow("texts one beyond their limits")
            << beyond << true
            << QStringList{u"XXXVIIII"_s, u"12345"_s, u"54321"_s, u"1"_s, u"2"_s, QString(50, u'b'), QString(50, u'g')};
        QTest::newRow("no separator at all") << u"Kaputt"_s << false << QStringList(7);
        // Bezeichnung finds no ";" and stays as it was; the failed cut still
        // takes two characters off the rest, and the last field reads "z".
        QTest::newRow("six fields are not enough") << u"\"I\";\"1\";\"50\";\"2040\";\"2050\";\"Bez\";"_s << false
                                                   << QStringList{u"I"_s, u"1"_s, u"50"_s, u"2040"_s, u"2050"_s,
                                                                  QString(), u"z"_s};
    }
    void cycleLines()
    {
        QFETCH(QString, line);
        QFETCH(QStringList, values);
        CycleReader reader;
        const CycleRecord& r = reader.Read(line);
        QTEST(r.IsGood(), "good");
        QCOMPARE((QStringList{r.Zyklus, r.NrVon, r.NrBis, r.ZeitVon, r.ZeitBis, r.Bezeichnung, r.Zyklusbereich}),
                 values);
    }

    // Sixteen links at most: a seventeenth on the line is not read.
    void linkCount()
    {
        QString text = u"\"5\";"_s + QString(17, u'x').replace(u"x"_s, u"\"\";"_s);
        for (int e = 1; e <= StatusCount; ++e)
            text += DatField(QString());
        for (int i = 1; i <= MaxLinks + 1; ++i)
            text += DatField(QString::number(100 + i)) + DatField(u"Text %1"_s.arg(i)) + DatField(u"Serie"_s);
        DetailsReader reader;
        const DetailsRecord& r = reader.Read(text);
        QCOMPARE(r.LinksRead, 16);
        for (int i = 0; i < r.LinksRead; ++i)
            QCOMPARE(r.Links[static_cast<size_t>(i)].Num, 101 + i);
    }

    // Lines end at CR LF, CR or a lone LF inside a CR LF pair; the file
    // is read as Latin-1. An empty file ends at once.
    void fileLines_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");
        QTest::newRow("line ends") << QByteArray("a\r\nb\rc\nd\r\n\r\n\xe4")
                                   << QStringList{u"a"_s, u"b"_s, u"c\nd"_s, QString(), u"ä"_s};
        QTest::newRow("empty file") << QByteArray() << QStringList();
    }
    void fileLines()
    {
        QFETCH(QByteArray, bytes);
        QTemporaryDir dir;
        const QString path = dir.filePath(u"Enden.dat"_s);
        heft::test::WriteFile(path, bytes);
        DatInputFile input;
        QVERIFY(input.Open(path));
        QStringList read;
        while (!input.AtEnd())
            read << input.ReadLine();
        QTEST(read, "lines");
        QCOMPARE(input.ReadLine(), QString());
    }

    void headers_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<DatKind>("kind");
        QTest::newRow("list") << u"[Valdorin Heftromane]"_s << DatKind::List;
        QTest::newRow("other list kind") << u"[Valdorin Taschenbücher]"_s << DatKind::None;
    }
    void headers()
    {
        QFETCH(QString, line);
        QTEST(KindOfHeader(line, u"Valdorin"_s, u"Heftromane"_s), "kind");
    }

private:
    static QString line(const QString& autor, const QString& titel, const QString& auflage, const QString& zyklus,
                        const QString& gl, const QString& bemerkung)
    {
        return DatField(u"1"_s) + DatField(autor) + DatField(titel) + DatField(auflage) + DatField(zyklus) +
               DatField(gl) + DatField(bemerkung);
    }
};

HEFT_TEST(TestDatReader)
#include "tst_datreader.moc"
