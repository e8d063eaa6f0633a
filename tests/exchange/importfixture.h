#pragma once
// A collection with two entries and their details, the full list loaded from
// it, and import files written into its folder in Windows-1252.

#include "testsupport.h"

#include "core/codepage.h"
#include "core/sqlwriters.h"
#include "exchange/importengine.h"
#include "mainwin/entrylist.h"

#include <QStringList>

namespace heft::test {

// "a";"b"; ... as the exchange files write fields.
inline QString Fields(const QStringList& values) {
    QString line;
    for (const QString& value : values)
        line += u'"' + value + QStringLiteral("\";");
    return line;
}

// A details line up to its design fields: Nr, date, subtitle, Person1 (the
// other eight empty), content, the five design fields.
inline QString DetailsFields(const QString& nr, const QString& date, const QString& untertitel,
                             const QString& person1, const QString& inhalt, const QStringList& design) {
    QStringList values{nr, date, untertitel, person1};
    for (int i = 0; i < 8; ++i)
        values << QString();
    values << inhalt << design;
    return Fields(values);
}

struct ImportFixture {
    // Without entries the collection is empty, as a new one is.
    explicit ImportFixture(bool withEntries = true) {
        if (withEntries)
            AddEntries();
        collection.session.ActiveCaption = [] { return ImportCaption(); };
        LoadList();
    }

    void AddEntries() {
        collection.Add({TestEntry(1, QStringLiteral("Ada Quell"), QStringLiteral("Nebelhafen"), 1,
                                  QStringLiteral("II"), true, QStringLiteral("alt")),
                        TestEntry(2, QStringLiteral("Bert Lohmann"), QStringLiteral("Glutwüste"), 2)});
        collection.Exec(
            QStringLiteral("INSERT INTO Details (Nr, Ersterscheinung, Untertitel, Person1, Inhalt) "
                           "VALUES (1, '1999-01-02', 'Alter Untertitel', 'Olga', 'Alter Inhalt');"));
        collection.Exec(
            QStringLiteral("INSERT INTO Gestaltung VALUES (1, 'Tibi', 'Illu', 0, 'Objekt', 'Zeichner');"));
        collection.Exec(QStringLiteral("INSERT INTO Status VALUES (1, 1, 'alt eins'), (1, 5, '0000002');"));
        collection.Exec(QStringLiteral("INSERT INTO Links VALUES (1, 1, 7, 'Alter Link', 'Valdorin');"));
    }

    void LoadList() {
        Session& session = collection.session;
        session.SharedRecordset =
            session.CollectionDb->Select(QStringLiteral("SELECT * FROM HEFTLIST ORDER BY Nr;"));
        list.SetupGridColumns();
        list.FillGrid(session);
        GetNrRange(session, QStringLiteral(";"), list.LowestNr, list.HighestNr);
    }

    // Writes header and lines with CR LF in Windows-1252; returns the path.
    QString Write(const QString& name, const QString& header, const QStringList& lines) const {
        const QString path = collection.dir.filePath(name);
        QString text = header + QStringLiteral("\r\n");
        for (const QString& line : lines)
            text += line + QStringLiteral("\r\n");
        WriteFile(path, ToWindows1252(text));
        return path;
    }

    // The rows of a query, fields joined by "|", rows by "/".
    QString Rows(const QString& sql) { return Rows(*collection.session.CollectionDb, sql); }
    static QString Rows(Database& db, const QString& sql) {
        Query query = db.Select(sql);
        QStringList rows;
        while (query.Next()) {
            QStringList fields;
            for (int i = 0; i < query.ColumnCount(); ++i)
                fields << query.Text(i);
            rows << fields.join(u'|');
        }
        return rows.join(u'/');
    }

    TempCollection collection;
    EntryList list;
    ImportObserver observer;
    FileImport import{collection.session, list, observer};
};

} // namespace heft::test
