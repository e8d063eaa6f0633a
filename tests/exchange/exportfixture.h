#pragma once
// A small collection for the export tests: three entries, two with details
// (one full, one nearly empty), and what the grid shows of them.

#include "testsupport.h"

#include "core/codepage.h"
#include "exchange/exportjob.h"
#include "mainwin/entryrows.h"

#include <QFile>
#include <QStringList>

namespace heft::test {

inline void AddExportEntries(TempCollection& c)
{
    c.Add({TestEntry(1, QStringLiteral("Ada Quell"), QStringLiteral("Nebelhafen & Söhne"), 2, QStringLiteral("IV"),
                     true, QStringLiteral("Preis 5 €")),
           TestEntry(2, QStringLiteral("Bert Lohmann"), QStringLiteral("Glutwüste"), 0, QStringLiteral("- - -"), false,
                     QString()),
           TestEntry(3, QStringLiteral("Cleo Marr"), QStringLiteral("Kaltes Licht"), 1, QStringLiteral("XII"), true,
                     QStringLiteral(""))});
    c.Exec(QStringLiteral("INSERT INTO Details VALUES (1, '8.9.1961', 'Die <Flut> kommt', 'Tarvin Ask', '', "
                          "'Mela Orkun', '', '', '', '', '', '', 'Tarvin erreicht Aldorath.');"));
    // Untertitel NULL: the writer repeats the field before it.
    c.Exec(QStringLiteral("INSERT INTO Details VALUES (3, '31.12.1900', NULL, '', '', '', '', '', '', '', '', '', "
                          "'');"));
    c.Exec(QStringLiteral("INSERT INTO Gestaltung VALUES (1, 'Lorenz Falk', 'Ines Marwald', -1, 'Kreuzer KASTOR', "
                          "'Bodo Lessner');"));
    c.Exec(QStringLiteral("INSERT INTO Status VALUES (1, 5, '00001.5'), (1, 1, '2024-03-17 um 14:22:05');"));
    c.Exec(QStringLiteral("INSERT INTO Links VALUES (1, 2, 3, 'Finale', 'Valdorin Taschenbücher'), "
                          "(1, 1, 2, 'Fortsetzung', 'Valdorin Heftromane');"));
}

// The rows as the full list shows them, or those of a select.
inline ExportList ExportRows(TempCollection& c,
                             const QString& sql = QStringLiteral("SELECT * FROM HEFTLIST ORDER BY Nr;"))
{
    Query query = c.session.CollectionDb->Select(sql);
    ExportList list;
    list.rows = ReadEntryRows(query, 0);
    return list;
}

// The lines of a Windows-1252 file with CR LF; the last line ends too.
inline QStringList FileLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {QStringLiteral("<missing>")};
    QStringList lines = FromWindows1252(file.readAll()).split(QStringLiteral("\r\n"));
    if (lines.last().isEmpty())
        lines.removeLast();
    else
        lines << QStringLiteral("<no CR LF at the end>");
    return lines;
}

} // namespace heft::test
