#include "collectiongenerator.h"

#include "core/roman.h"
#include "core/schema.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QStringList Authors = {u"Kurt Brandis"_s, u"Hanno Velden"_s, u"Ulla Sternberg"_s, u"Götz Marwitz"_s,
                             u"Rainer Ostermann"_s, u"Björn Ackerlund"_s, u"Sabine Thalheim"_s};
// First and last names for collections with more authors than the list above.
const QStringList FirstNames = {u"Anke"_s, u"Bernd"_s, u"Carla"_s, u"Dirk"_s, u"Elke"_s,
                                u"Frank"_s, u"Gesa"_s, u"Holger"_s, u"Ines"_s, u"Jörg"_s};
const QStringList LastNames = {u"Lindner"_s, u"Mahler"_s, u"Nolte"_s, u"Oberländer"_s,
                               u"Petersen"_s, u"Quast"_s, u"Reuter"_s, u"Sommer"_s};
const QStringList TitleStart = {u"Die Festung"_s, u"Der Ruf"_s, u"Das Erbe"_s, u"Die Jäger"_s, u"Der Schatten"_s,
                                u"Die Wächter"_s, u"Das Tor"_s, u"Die Flucht"_s};
const QStringList TitleEnd = {u"am Nebelmeer"_s, u"der Sternenwanderer"_s, u"von Quarmor"_s, u"im Eis"_s,
                              u"der Vergessenen"_s, u"aus der Tiefe"_s, u"über Dalmoor"_s};

// Several rows per statement: the statement text is parsed once per batch.
class BatchInserter {
public:
    BatchInserter(Database& db, QString head) : m_db(db), m_head(std::move(head)) {}
    ~BatchInserter() { Flush(); }
    BatchInserter(const BatchInserter&) = delete;
    BatchInserter& operator=(const BatchInserter&) = delete;
    void Add(const QString& values)
    {
        m_rows << values;
        if (m_rows.size() == 400)
            Flush();
    }
    void Flush()
    {
        if (m_rows.isEmpty())
            return;
        if (const DbError error = m_db.Execute(m_head + m_rows.join(u", "_s) + u';'))
            qFatal("generated rows refused: %s", qPrintable(error.description));
        m_rows.clear();
    }

private:
    Database& m_db;
    QString m_head;
    QStringList m_rows;
};

QString AuthorOf(int nr, int authors)
{
    const int index = nr % authors;
    if (authors <= Authors.size())
        return Authors[index];
    return FirstNames[index % FirstNames.size()] + u' ' + LastNames[index / FirstNames.size() % LastNames.size()];
}

QString StatusValue(int enumber, int nr, const CollectionShape& shape)
{
    switch (enumber) {
    case 1: return u"2024-05-%1 um 12:%2:00"_s.arg(1 + nr % 28, 2, 10, QChar(u'0')).arg(nr % 60, 2, 10, QChar(u'0'));
    case 2: return u"000000%1"_s.arg(1 + nr % 3);
    case 5: return u"0000%1.5"_s.arg(1 + nr % 9, 2, 10, QChar(u'0'));
    case 6: return u"0000%1.0"_s.arg(2 + nr % 7, 2, 10, QChar(u'0'));
    case 10: return u"0000064"_s;
    case 18: return nr % shape.lentEvery == 0 ? u"2023-11-0%1"_s.arg(1 + nr % 9) : QString();
    default: return nr % (enumber + 1) == 0 ? QString() : u"Wert %1/%2"_s.arg(enumber).arg(nr % 17);
    }
}

} // namespace

bool GenerateCollection(const QString& path, int entries, const CollectionShape& shape)
{
    DbError error;
    auto db = CreateCollectionFile(path, u"Valdorin"_s, u"Heftromane"_s, &error);
    if (!db)
        return false;
    db->BeginChange();
    {
        BatchInserter list(*db, u"INSERT INTO HEFTLIST VALUES "_s);
        BatchInserter details(*db, u"INSERT INTO Details VALUES "_s);
        BatchInserter artists(*db, u"INSERT INTO Gestaltung VALUES "_s);
        BatchInserter status(*db, u"INSERT INTO Status VALUES "_s);
        BatchInserter links(*db, u"INSERT INTO Links VALUES "_s);
        for (int nr = 1; nr <= entries; ++nr) {
            int cycle = 1 + (nr / 100) % shape.cycles;
            list.Add(u"(%1, '%2', '%3 %4', %5, '%6', %7, %8)"_s.arg(nr)
                         .arg(AuthorOf(nr, shape.authors), TitleStart[nr % TitleStart.size()],
                              TitleEnd[(nr / 3) % TitleEnd.size()])
                         .arg(nr % 4)
                         .arg(NumberToRoman(cycle), nr % 3 ? u"255"_s : u"0"_s,
                              nr % 10 ? u"NULL"_s : u"'Sammlerstück'"_s));
            details.Add(u"(%1, '%2-09-08', 'Untertitel %1', 'Arkon Veyl', 'Mira Solten', '', '', '', '', '', '', "
                        "'', 'Eine Expedition bricht auf, um das Rätsel von Band %1 zu lösen.')"_s.arg(nr)
                            .arg(1961 + nr / 52));
            artists.Add(u"(%1, 'Jost Halder', 'Ina Pfeffer', %2, '', '')"_s.arg(nr).arg(nr % 8 ? 0 : 255));
            for (int e = 1; e <= 19; ++e)
                status.Add(u"(%1, %2, '%3')"_s.arg(nr).arg(e).arg(StatusValue(e, nr, shape)));
            for (int k = 1; k <= 2; ++k)
                links.Add(u"(%1, %2, %3, 'Fortsetzung', 'Valdorin Heftromane')"_s.arg(nr).arg(k).arg(
                    nr > k ? nr - k : nr + k));
        }
    }
    db->EndChange();
    return true;
}

} // namespace heft
