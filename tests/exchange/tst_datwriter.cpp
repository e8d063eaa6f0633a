#include "testmain.h"

#include "exchange/datfile.h"
#include "exchange/datreader.h"

#include "core/codepage.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace heft;

class TestDatWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void listLine()
    {
        ListRecord r;
        r.Nr = u" 12 "_s;
        r.Autor = u"Kurt Brandis  "_s;
        r.Titel = u"  Die Festung am Nebelmeer"_s;
        r.Zyklus = u"IV"_s;
        r.Gelesen = true;
        QCOMPARE(ListLine(r), u"\"12\";\"Kurt Brandis\";\"Die Festung am Nebelmeer\";\"-\";\"IV\";\"Ja\";\"\";"_s);
        r.Auflage = u" 2"_s;
        r.Gelesen = false;
        QVERIFY(ListLine(r).contains(u"\" 2\";\"IV\";\"Nein\";"_s));
    }

    void dates_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("written");
        QTest::newRow("iso") << u"1961-09-08"_s << u"1961-09-08"_s;
        QTest::newRow("german") << u"8.9.1961"_s << u"1961-09-08"_s;
        QTest::newRow("no-date value") << u"31.12.1900"_s << u"1900-12-31"_s;
        QTest::newRow("month name from the web") << u"2006-Oktober-05"_s << u"2006-10-05"_s;
        QTest::newRow("no date stays") << u"Herbst 1962"_s << u"Herbst 1962"_s;
        QTest::newRow("empty") << QString() << QString();
    }
    void dates()
    {
        QFETCH(QString, stored);
        QTEST(FormatDatDate(stored), "written");
    }

    // What the export writes, the import reads back unchanged, as long as the
    // values keep to the reader's limits.
    void detailsRoundTrip()
    {
        DetailsRecord written;
        written.Nr = u"2311"_s;
        written.Ersterscheinung = u"2005-12-02"_s;
        written.Untertitel = u"Sie kamen aus der Glutwüste – und niemand hielt sie auf"_s;
        written.Persons = {u"Tarvin Ask"_s, u"Mela Orkun"_s, u"Der Graue"_s};
        written.Inhalt = u"Tarvin erreicht Aldorath; dort wartet \"der Graue\" auf ihn."_s;
        written.TiBiZeichner = u"Lorenz Falk"_s;
        written.IlluZeichner = u"Ines Marwald"_s;
        written.Rz = true;
        written.RiZeObjekt = u"Kreuzer KASTOR"_s;
        written.RiZeZeichner = u"Bodo Lessner"_s;
        written.Status[0] = u"2024-03-17 um 14:22:05"_s;
        written.Status[4] = u"00001.5"_s;
        written.Status[18] = u"Großartig"_s;
        for (int i = 0; i < 3; ++i)
            written.Links[static_cast<size_t>(i)] = {2312 + i, u"Fortsetzung in Band %1"_s.arg(2312 + i),
                                                     u"Valdorin Heftromane"_s};
        written.LinksRead = 3;

        DetailsReader reader;
        const DetailsRecord& read = reader.Read(DetailsLine(written));
        QVERIFY(read.IsGood());
        QCOMPARE(read.Nr, written.Nr);
        QCOMPARE(read.Ersterscheinung, written.Ersterscheinung);
        QCOMPARE(read.Untertitel, written.Untertitel);
        QCOMPARE(read.Persons, written.Persons);
        QCOMPARE(read.Inhalt, written.Inhalt);
        QCOMPARE(read.RZ, u"Ja"_s);
        QVERIFY(read.Rz);
        QCOMPARE(read.RiZeObjekt, written.RiZeObjekt);
        QCOMPARE(read.RiZeZeichner, written.RiZeZeichner);
        QVERIFY(read.HasStatus);
        QCOMPARE(read.Status, written.Status);
        QCOMPARE(read.LinksRead, 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(read.Links[static_cast<size_t>(i)].Num, written.Links[static_cast<size_t>(i)].Num);
            QCOMPARE(read.Links[static_cast<size_t>(i)].Text, written.Links[static_cast<size_t>(i)].Text);
        }
    }

    void cycleRoundTrip()
    {
        CycleRecord written{u"XXXV"_s, u"2451"_s, u"2520"_s, u"-3200"_s, u"3600"_s, u"Die Nebelkriege"_s,
                            u"Das Zeitalter der Wanderer"_s};
        CycleReader reader;
        const CycleRecord& read = reader.Read(CycleLine(written));
        QVERIFY(read.IsGood());
        QCOMPARE(CycleLine(read), CycleLine(written));
    }

    // Every character of the code page survives the file: written as one
    // byte, read back as the same character.
    void everyCodePageCharacterRoundTrips()
    {
        QString all;
        for (int byte = 1; byte < 256; ++byte)
            if (byte != '\r')
                all += FromWindows1252(QByteArray(1, static_cast<char>(byte)));
        all.replace(u"\";"_s, u"\"."_s);
        const QString trimmed = u'x' + all + u'x';

        QTemporaryDir dir;
        const QString path = dir.filePath(u"Alle.dat"_s);
        DatOutputFile output;
        QVERIFY(output.Open(path));
        output.WriteLine(ListHeader(u"Valdorin"_s, u"Heftromane"_s));
        QStringList chunks;
        for (qsizetype at = 0; at < trimmed.size(); at += 25)
            chunks << trimmed.mid(at, 25);
        for (const QString& chunk : std::as_const(chunks)) {
            ListRecord r;
            r.Nr = u"1"_s;
            r.Autor = chunk;
            r.Titel = u"Ä"_s;
            output.WriteLine(ListLine(r));
        }
        QVERIFY(output.Close());

        QFile raw(path);
        QVERIFY(raw.open(QIODevice::ReadOnly));
        const QByteArray bytes = raw.readAll();
        QVERIFY(bytes.contains("\x80"));                     // €
        QVERIFY(bytes.contains("\xc4\";\"-\";\"\";\"Nein\";\"\";\r\n")); // Ä, then the line end

        DatInputFile input;
        QVERIFY(input.Open(path));
        QCOMPARE(KindOfHeader(input.ReadLine(), u"Valdorin"_s, u"Heftromane"_s), DatKind::List);
        ListReader reader;
        QString back;
        while (!input.AtEnd()) {
            const ListRecord& r = reader.Read(input.ReadLine());
            QVERIFY(r.IsGood());
            QCOMPARE(r.Titel, u"Ä"_s);
            back += r.Autor;
        }
        // A line break inside a value would split its record: it goes out as a blank.
        QCOMPARE(back, QString(trimmed).replace(u'\n', u' '));
    }
};

HEFT_TEST(TestDatWriter)
#include "tst_datwriter.moc"
