#pragma once
// The text rules of the wiki scrape: pieces of raw HTML made into field
// values. The rules keep the quirks the exchange files were made with (see
// the tests); a rule that cannot be applied to its piece returns nothing,
// which fails the issue at the step that asked for it.

#include <QString>
#include <QStringList>

#include <optional>

namespace heft {

// 1-based position of `what` in `text` from `start`, case-blind; 0 if absent.
// nullopt for a start before 1, which the runtime refuses as a call error.
std::optional<qsizetype> FindText(const QString& text, const QString& what, qsizetype start);

// A cut piece of the page (one character per byte) decoded from UTF-8, the
// entities and marks of the wiki replaced, trimmed.
QString DecodeWebText(const QString& piece);
// The texts of the links in a decoded cell, joined by " / "; a cell without
// a link gives what follows its first "<td>".
std::optional<QString> LinkTextsOnly(const QString& cell);
// Shortens first names to their initials, one after the other, until the
// text is 25 characters or shorter or no name is left.
std::optional<QString> ShortenAuthors(const QString& authors);
// "<td>Donnerstag, 5. Oktober 2006" -> "2006-Oktober-05".
std::optional<QString> WebDateText(const QString& cell);
// The link texts of a decoded cell, at most ten.
std::optional<QStringList> PersonNames(const QString& cell);
// The number of the cycle `name` on the cycle list page.
std::optional<int> CycleNumberOnList(const QString& listPage, const QString& name);
// The address of the full picture on a picture page ("fullImageLink").
std::optional<QString> FullImageLink(const QString& picturePage);

} // namespace heft
