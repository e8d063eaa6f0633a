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
    void dates_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("written");
        QTest::newRow("german") << u"8.9.1961"_s << u"1961-09-08"_s;
        QTest::newRow("month name from the web") << u"2006-Oktober-05"_s << u"2006-10-05"_s;
        QTest::newRow("no date stays") << u"Herbst 1962"_s << u"Herbst 1962"_s;
    }
    void dates()
    {
        QFETCH(QString, stored);
        QTEST(FormatDatDate(stored), "written");
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
