#pragma once
// The text sources in data/ as the build tools read them: exchange files,
// read with the program's own reader, so that a line the reader would
// refuse stops the build instead of vanishing quietly.

#include "exchange/datfile.h"
#include "exchange/datreader.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace heft {

class BuildError {
public:
    explicit BuildError(QString text) : m_text(std::move(text)) {}
    const QString& Text() const { return m_text; }

private:
    QString m_text;
};

// The main of a build tool: checks for the two folders (sources, output),
// runs build and turns a BuildError into a message and exit code 1.
int RunBuildTool(const QStringList& arguments, const char* toolName,
                 const std::function<void(const QString& sources, const QString& output)>& build);

// The series of the shipped sample.
QString SourceSeries();

// The record lines of an exchange file whose header must be the expected one.
QStringList ReadRecordLines(const QString& path, DatKind expected, const QString& kind);

template <typename Reader, typename Record>
std::vector<Record> ReadRecords(const QString& path, DatKind kind, const QString& listKind)
{
    Reader reader;
    std::vector<Record> records;
    int lineNumber = 1;
    for (const QString& line : ReadRecordLines(path, kind, listKind)) {
        ++lineNumber;
        const Record& record = reader.Read(line);
        if (!record.IsGood())
            throw BuildError(QStringLiteral("%1, Zeile %2 ist unvollständig").arg(path).arg(lineNumber));
        records.push_back(record);
    }
    return records;
}

std::vector<ListRecord> ReadList(const QString& path, const QString& kind);
std::vector<DetailsRecord> ReadDetails(const QString& path);

} // namespace heft
