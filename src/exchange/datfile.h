#pragma once
// Exchange files on disk: Windows-1252 text, lines ended by CR LF.

#include <QByteArray>
#include <QFile>
#include <QString>

namespace heft {

// Reads a file line by line as the runtime's line input does: a line ends at
// CR LF or at a lone CR; a lone LF stays inside the line.
class DatInputFile {
public:
    // False when the file can't be read.
    bool Open(const QString& path);
    bool AtEnd() const { return m_pos >= m_bytes.size(); }
    // The next line without its end; an empty text at the end of the file.
    QString ReadLine();
    // Bytes read so far and in all, for a progress display.
    qint64 Position() const { return m_pos; }
    qint64 Size() const { return m_bytes.size(); }

private:
    QByteArray m_bytes;
    qsizetype m_pos = 0;
};

class DatOutputFile {
public:
    // Creates the file, replacing an old one.
    bool Open(const QString& path);
    void WriteLine(const QString& line);
    // Flushes and closes; false if anything could not be written.
    bool Close();
    // Characters written as "?" because Windows-1252 has none for them.
    qsizetype Unencodable() const { return m_unencodable; }

private:
    QFile m_file;
    bool m_ok = true;
    qsizetype m_unencodable = 0;
};

} // namespace heft
