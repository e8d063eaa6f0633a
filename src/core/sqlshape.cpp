#include "sqlshape.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

bool IsWordChar(QChar c) { return c.isLetterOrNumber() || c == u'_'; }

bool IsWord(QStringView word, QStringView name) { return word.compare(name, Qt::CaseInsensitive) == 0; }

} // namespace

std::optional<SqlShape> ShapeOf(const QString& sql)
{
    SqlShape shape;
    shape.text.reserve(sql.size());
    const qsizetype n = sql.size();
    bool select = false;
    bool inColumns = false; // between SELECT and its first FROM
    bool first = true;
    qsizetype i = 0;
    qsizetype copied = 0; // sql up to here is in shape.text
    while (i < n) {
        const QChar c = sql[i];
        if (IsWordChar(c) && !c.isDigit()) {
            qsizetype end = i + 1;
            while (end < n && IsWordChar(sql[end]))
                ++end;
            const QStringView word = QStringView(sql).mid(i, end - i);
            if (first) {
                select = IsWord(word, u"SELECT");
                inColumns = select;
                if (!select && !IsWord(word, u"INSERT") && !IsWord(word, u"UPDATE") && !IsWord(word, u"DELETE"))
                    return std::nullopt;
                first = false;
            } else if (IsWord(word, u"ORDER") || IsWord(word, u"GROUP") || IsWord(word, u"XOR") ||
                       IsWord(word, u"DateValue")) {
                return std::nullopt;
            } else if (IsWord(word, u"FROM")) {
                inColumns = false;
            }
            // A word glued to a quote is a blob or some other prefix.
            if (end < n && sql[end] == u'\'')
                return std::nullopt;
            i = end;
        } else if (c == u'\'' || c.isDigit()) {
            if (first || inColumns)
                return std::nullopt;
            SqlLiteral literal;
            qsizetype end = i + 1;
            if (c == u'\'') {
                literal.isText = true;
                bool doubled = false;
                for (;; ++end) {
                    if (end >= n)
                        return std::nullopt;
                    if (sql[end] != u'\'')
                        continue;
                    if (end + 1 < n && sql[end + 1] == u'\'') {
                        doubled = true;
                        ++end;
                        continue;
                    }
                    break;
                }
                literal.value = sql.mid(i + 1, end - i - 1);
                if (doubled)
                    literal.value.replace(u"''"_s, u"'"_s);
                ++end;
            } else {
                bool point = false;
                while (end < n && (sql[end].isDigit() || (sql[end] == u'.' && !point))) {
                    point = point || sql[end] == u'.';
                    ++end;
                }
                // "1e5", "0x10", "1.2.3": leave such numbers to SQLite.
                if (end < n && (IsWordChar(sql[end]) || sql[end] == u'.'))
                    return std::nullopt;
                literal.value = sql.mid(i, end - i);
            }
            if (i > 0 && sql[i - 1] == u'.')
                return std::nullopt;
            shape.literals.append(literal);
            shape.text += QStringView(sql).mid(copied, i - copied);
            shape.text += u'?';
            i = end;
            copied = end;
        } else if (QStringView(u"\"[`?:@$#").contains(c) || (c == u'-' && i + 1 < n && sql[i + 1] == u'-') ||
                   (c == u'/' && i + 1 < n && sql[i + 1] == u'*')) {
            return std::nullopt;
        } else {
            ++i;
        }
    }
    if (first)
        return std::nullopt;
    shape.text += QStringView(sql).mid(copied);
    return shape;
}

} // namespace heft
