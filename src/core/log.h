#pragma once
// Heftarium.log: plain CR LF text, opened and closed for every entry. Besides
// diagnosis it carries the main window's placement from one run to the next.

#include <QString>

namespace heft {

enum LogCode : int { LogInfo = 0, LogConfig = 10 };

class Log {
public:
    Log() = default;
    explicit Log(QString filePath) : m_path(std::move(filePath)) {}
    QString Path() const { return m_path; }
    // Appends one entry. Code 0: "[Info]" and the text; code 10: an empty
    // line, "[Konfig]" and the text; any other code: the last SQL statement,
    // "[Fehler {code}]" and the text. Failures are ignored.
    void Write(int code, const QString& text, const QString& lastSql) const;

private:
    QString m_path;
};

} // namespace heft
