#include "wikitext.h"

#include "core/codepage.h"
#include "core/schema.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr int MaxPersons = 10;
// A cycle number is written as a roman numeral; beyond this it would be a
// line of thousands of M.
constexpr int MaxCycleNumber = 3999;

// The text between `from` (1-based) and `to` (exclusive); nothing for a
// start before 1 or a negative length, as the runtime's Mid refuses them.
std::optional<QString> Piece(const QString& text, qsizetype from, qsizetype to)
{
    if (from < 1 || to < from)
        return std::nullopt;
    return Mid(text, from, to - from);
}

} // namespace

std::optional<qsizetype> FindText(const QString& text, const QString& what, qsizetype start)
{
    if (start < 1)
        return std::nullopt;
    if (start > text.size())
        return 0;
    return text.indexOf(what, start - 1, Qt::CaseInsensitive) + 1;
}

QString DecodeWebText(const QString& piece)
{
    // The order matters: the small entities are replaced before the capital
    // ones, which the case-blind search has by then already caught.
    static const std::pair<QString, QString> replacements[] = {
        {u"&auml;"_s, u"ä"_s},   {u"&nbsp;"_s, u"-"_s},   {u"&#160;"_s, u" "_s},   {u"–"_s, u"-"_s},
        {u"&uuml;"_s, u"ü"_s},   {u"&ouml;"_s, u"ö"_s},   {u"&szlig;"_s, u"ß"_s},  {u"&Auml;"_s, u"Ä"_s},
        {u"&Uuml;"_s, u"Ü"_s},   {u"&Ouml;"_s, u"Ö"_s},   {u"&eacute;"_s, u"é"_s}, {u"\""_s, u"'"_s},
        {u"\n"_s, u" "_s},
    };
    QString text = Utf8ToText(piece.toLatin1());
    for (const auto& [find, replace] : replacements)
        text.replace(find, replace, Qt::CaseInsensitive);
    return Trim(text);
}

std::optional<QString> LinkTextsOnly(const QString& cell)
{
    const auto link = FindText(cell, u"'>"_s, 1);
    qsizetype p = *link + 2;
    if (p <= 2)
        return Mid(cell, *FindText(cell, u"<td>"_s, 1) + 4);
    QString value;
    for (bool first = true; p > 2; first = false) {
        if (!first)
            value += u" / "_s;
        const auto close = FindText(cell, u"</a>"_s, p);
        if (!close)
            return std::nullopt;
        const auto text = Piece(cell, p, *close);
        if (!text)
            return std::nullopt;
        value += *text;
        const auto next = FindText(cell, u"'>"_s, *close);
        if (!next)
            return std::nullopt;
        p = *next + 2;
    }
    return value;
}

std::optional<QString> ShortenAuthors(const QString& authors)
{
    QString text = authors;
    if (text.size() <= AuthorLength)
        return text;
    // q is where the current name starts, blank the end of its first name.
    qsizetype q = 1;
    for (;;) {
        const qsizetype blank = *FindText(text, u" "_s, q);
        text = Left(text, q) + u". "_s + Mid(text, blank + 1);
        // Searched from the old blank in the shorter text, as it always was.
        const auto slash = FindText(text, u" / "_s, blank);
        if (!slash)
            return std::nullopt;
        q = *slash + 3;
        if (text.size() <= AuthorLength || q <= 3)
            return text;
    }
}

std::optional<QString> WebDateText(const QString& cell)
{
    // Split at blanks into at most four parts, the last one keeping the rest.
    QStringList parts;
    qsizetype from = 0;
    while (parts.size() < 3) {
        const qsizetype blank = cell.indexOf(u' ', from);
        if (blank < 0)
            break;
        parts << cell.mid(from, blank - from);
        from = blank + 1;
    }
    parts << cell.mid(from);
    if (parts.size() < 4)
        return std::nullopt;
    return parts[3] + u'-' + parts[2] + u'-' + Right(u'0' + QString(parts[1]).remove(u'.'), 2);
}

std::optional<QStringList> PersonNames(const QString& cell)
{
    QStringList names;
    qsizetype s = 1;
    while (names.size() < MaxPersons) {
        const auto open = FindText(cell, u"'>"_s, s);
        if (!open)
            return std::nullopt;
        const qsizetype p = *open + 2;
        if (p <= 3)
            break;
        const auto close = FindText(cell, u"</a>"_s, p);
        if (!close)
            return std::nullopt;
        const auto name = Piece(cell, p, *close);
        if (!name)
            return std::nullopt;
        names << *name;
        s = *close;
    }
    return names;
}

std::optional<int> CycleNumberOnList(const QString& listPage, const QString& name)
{
    const auto title = FindText(listPage, u"title=\"Portal &quot;"_s + name, 1);
    if (!title)
        return std::nullopt;
    const auto open = FindText(listPage, u"\">"_s, *title);
    if (!open || *open == 0)
        return std::nullopt;
    const auto close = FindText(listPage, u".</a>"_s, *open + 2);
    if (!close)
        return std::nullopt;
    const auto number = Piece(listPage, *open + 2, *close);
    if (!number)
        return std::nullopt;
    bool ok = false;
    const int value = Trim(*number).toInt(&ok);
    if (!ok || value < 0 || value > MaxCycleNumber)
        return std::nullopt;
    return value;
}

std::optional<QString> FullImageLink(const QString& picturePage)
{
    const auto href = FindText(picturePage, u"<a href=\""_s, *FindText(picturePage, u"fullImageLink"_s, 1));
    if (!href)
        return std::nullopt;
    const auto close = FindText(picturePage, u"\">"_s, *href + 9);
    if (!close)
        return std::nullopt;
    return Piece(picturePage, *href + 9, *close);
}

} // namespace heft
