#pragma once
// Exchange, text and HTML files are Windows-1252; these two functions are the
// one place that knows it. Every byte maps to one character and back; a
// character outside the code page is written as "?".

#include <QByteArray>
#include <QString>

namespace heft {

// *unencodable, when given, grows by the characters that had to become "?".
QByteArray ToWindows1252(const QString& text, qsizetype* unencodable = nullptr);
QString FromWindows1252(const QByteArray& bytes);
// Text of a web page, taken as raw bytes and decoded as UTF-8.
QString Utf8ToText(const QByteArray& bytes);

// The table the two functions fall back on when the platform has no
// windows-1252 codec: the character of one byte (undefined bytes keep their
// C1 code point). Public so that it can be checked against the codec.
char16_t BuiltInWindows1252(unsigned char byte);

} // namespace heft
