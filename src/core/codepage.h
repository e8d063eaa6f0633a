#pragma once
// Exchange, text and HTML files are Windows-1252; these two functions are the
// one place that knows it.

#include <QByteArray>
#include <QString>

namespace heft {

QByteArray ToWindows1252(const QString& text);
QString FromWindows1252(const QByteArray& bytes);
// Text of a web page, taken as raw bytes and decoded as UTF-8.
QString Utf8ToText(const QByteArray& bytes);

} // namespace heft
