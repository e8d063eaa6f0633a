#include "datfile.h"

#include "core/codepage.h"
#include "core/textfuncs.h"

namespace heft {

bool DatInputFile::Open(const QString& path)
{
    QFile file(path);
    m_pos = 0;
    m_bytes.clear();
    if (!file.open(QIODevice::ReadOnly))
        return false;
    m_bytes = file.readAll();
    return true;
}

QString DatInputFile::ReadLine()
{
    const qsizetype start = m_pos;
    qsizetype end = m_bytes.indexOf('\r', start);
    if (end < 0)
        end = m_bytes.size();
    m_pos = end + 1;
    if (m_pos < m_bytes.size() && m_bytes[m_pos] == '\n')
        ++m_pos;
    m_pos = qMin(m_pos, m_bytes.size());
    return FromWindows1252(m_bytes.mid(start, end - start));
}

bool DatOutputFile::Open(const QString& path)
{
    m_file.setFileName(path);
    m_ok = m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    return m_ok;
}

void DatOutputFile::WriteLine(const QString& line)
{
    // A line break inside a value would end the record early and cut it in
    // two: the format has no way to hold one, so it becomes a blank.
    const QByteArray bytes = ToWindows1252(StripLineBreaks(line), &m_unencodable) + "\r\n";
    if (m_file.write(bytes) != bytes.size())
        m_ok = false;
}

bool DatOutputFile::Close()
{
    if (m_file.isOpen() && !m_file.flush())
        m_ok = false;
    m_file.close();
    return m_ok;
}

} // namespace heft
