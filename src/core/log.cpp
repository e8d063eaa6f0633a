#include "log.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Every line of the log ends in CR LF, also the lines inside a text that
// carries a description and the SQL behind it.
QString WithCrLf(const QString& text)
{
    QString lines = text;
    lines.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    return lines.replace(u'\n', "\r\n"_L1);
}

} // namespace

void Log::Write(int code, const QString& text, const QString& lastSql) const
{
    if (m_path.isEmpty())
        return;
    QString entry;
    switch (code) {
    case LogInfo:
        entry = u"[Info]\n"_s;
        break;
    case LogConfig:
        entry = u"\n[Konfig]\n"_s;
        break;
    default:
        entry = lastSql + u"\n[Fehler "_s + QString::number(code) + u"]\n"_s;
        break;
    }
    entry += text + u'\n';

    // Opened and closed per entry, so that a crash loses nothing written.
    QFile file(m_path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append))
        file.write(WithCrLf(entry).toUtf8());
}

} // namespace heft
