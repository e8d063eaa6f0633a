#include "jetdialect.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

enum class TokenKind { Space, Word, Number, String, QuotedName, Open, Close, Comma, Semicolon, Operator, Other };

struct Token {
    TokenKind kind;
    QString text;
};

bool IsWordChar(QChar c) { return c.isLetterOrNumber() || c == u'_' || c == u'$'; }

QList<Token> Tokenize(const QString& sql)
{
    QList<Token> tokens;
    const qsizetype n = sql.size();
    qsizetype i = 0;
    auto closingAt = [&](QChar closer, qsizetype from, bool doubledEscapes) {
        qsizetype j = from + 1;
        while (j < n) {
            if (sql[j] == closer) {
                if (doubledEscapes && j + 1 < n && sql[j + 1] == closer) {
                    j += 2;
                    continue;
                }
                return j + 1;
            }
            ++j;
        }
        return n;
    };
    while (i < n) {
        const QChar c = sql[i];
        qsizetype end = i + 1;
        TokenKind kind = TokenKind::Other;
        if (c.isSpace()) {
            while (end < n && sql[end].isSpace())
                ++end;
            kind = TokenKind::Space;
        } else if (c == u'\'') {
            end = closingAt(u'\'', i, true);
            kind = TokenKind::String;
        } else if (c == u'"') {
            end = closingAt(u'"', i, true);
            kind = TokenKind::QuotedName;
        } else if (c == u'[') {
            end = closingAt(u']', i, false);
            kind = TokenKind::QuotedName;
        } else if (c.isDigit()) {
            while (end < n && (sql[end].isDigit() || sql[end] == u'.'))
                ++end;
            kind = TokenKind::Number;
        } else if (IsWordChar(c)) {
            while (end < n && IsWordChar(sql[end]))
                ++end;
            kind = TokenKind::Word;
        } else if (c == u'(') {
            kind = TokenKind::Open;
        } else if (c == u')') {
            kind = TokenKind::Close;
        } else if (c == u',') {
            kind = TokenKind::Comma;
        } else if (c == u';') {
            kind = TokenKind::Semicolon;
        } else if (QStringView(u"<>=!").contains(c)) {
            while (end < n && QStringView(u"<>=").contains(sql[end]))
                ++end;
            kind = TokenKind::Operator;
        }
        tokens.append({kind, sql.mid(i, end - i)});
        i = end;
    }
    return tokens;
}

QString Join(const QList<Token>& tokens, qsizetype from, qsizetype to)
{
    QString text;
    for (qsizetype i = from; i < to; ++i)
        text += tokens[i].text;
    return text;
}

bool IsWord(const Token& token, QStringView word)
{
    return token.kind == TokenKind::Word && token.text.compare(word, Qt::CaseInsensitive) == 0;
}

// Words that end (or start) an expression at its own bracket level: an XOR
// chain never reaches across them.
bool IsClauseWord(const Token& token)
{
    static const QStringList words = {u"SELECT"_s, u"FROM"_s,   u"WHERE"_s, u"GROUP"_s,  u"ORDER"_s,
                                      u"HAVING"_s, u"ON"_s,     u"JOIN"_s,  u"INNER"_s,  u"LEFT"_s,
                                      u"RIGHT"_s,  u"UNION"_s,  u"SET"_s,   u"VALUES"_s, u"WHEN"_s,
                                      u"THEN"_s,   u"ELSE"_s,   u"END"_s,   u"LIMIT"_s,  u"BY"_s};
    return token.kind == TokenKind::Word && words.contains(token.text, Qt::CaseInsensitive);
}

qsizetype MatchingClose(const QList<Token>& tokens, qsizetype open, qsizetype to)
{
    int depth = 0;
    for (qsizetype i = open; i < to; ++i) {
        if (tokens[i].kind == TokenKind::Open)
            ++depth;
        else if (tokens[i].kind == TokenKind::Close && --depth == 0)
            return i;
    }
    return to;
}

QString RewriteXor(const QList<Token>& tokens, qsizetype from, qsizetype to);

// One expression of one bracket level: split at its XOR words, each operand
// with its bracket groups rewritten in turn.
QString RewriteXorSegment(const QList<Token>& tokens, qsizetype from, qsizetype to)
{
    QStringList operands(1);
    for (qsizetype i = from; i < to; ++i) {
        if (tokens[i].kind == TokenKind::Open) {
            const qsizetype close = MatchingClose(tokens, i, to);
            operands.last() += u'(' + RewriteXor(tokens, i + 1, close) + (close < to ? u")"_s : QString());
            i = close;
        } else if (IsWord(tokens[i], u"XOR")) {
            operands.append(QString());
        } else {
            operands.last() += tokens[i].text;
        }
    }
    if (operands.size() == 1)
        return operands.first();
    // "<> 0" turns any truth value (Jet's -1 included) into 0/1 and keeps NULL.
    QString chain = u"((%1) <> 0)"_s.arg(operands[0].trimmed());
    for (qsizetype k = 1; k < operands.size(); ++k)
        chain = u"(%1 <> ((%2) <> 0))"_s.arg(chain, operands[k].trimmed());
    return u' ' + chain + u' ';
}

// Rewrites tokens[from, to), one bracket level: expressions end at clause
// words, commas and semicolons, so an XOR chain never reaches across them.
QString RewriteXor(const QList<Token>& tokens, qsizetype from, qsizetype to)
{
    QString out;
    qsizetype segmentStart = from;
    for (qsizetype i = from; i < to; ++i) {
        if (tokens[i].kind == TokenKind::Open) {
            i = MatchingClose(tokens, i, to);
            continue;
        }
        if (IsClauseWord(tokens[i]) || tokens[i].kind == TokenKind::Comma ||
            tokens[i].kind == TokenKind::Semicolon) {
            out += RewriteXorSegment(tokens, segmentStart, i) + tokens[i].text;
            segmentStart = i + 1;
        }
    }
    return out + RewriteXorSegment(tokens, segmentStart, to);
}

bool ContainsXor(const QList<Token>& tokens)
{
    return std::any_of(tokens.begin(), tokens.end(), [](const Token& t) { return IsWord(t, u"XOR"); });
}

// Applies the DateValue rule: "column <op> DateValue(" compares the column as
// a date as well, since first appearances are stored as text in several forms.
void WrapDateValueComparisons(QList<Token>& tokens)
{
    for (qsizetype i = 0; i < tokens.size(); ++i) {
        if (!IsWord(tokens[i], u"DateValue"))
            continue;
        qsizetype op = i - 1;
        while (op >= 0 && tokens[op].kind == TokenKind::Space)
            --op;
        if (op < 0 || tokens[op].kind != TokenKind::Operator)
            continue;
        qsizetype nameEnd = op;
        while (nameEnd > 0 && tokens[nameEnd - 1].kind == TokenKind::Space)
            --nameEnd;
        qsizetype nameStart = nameEnd;
        while (nameStart > 0) {
            const Token& before = tokens[nameStart - 1];
            const bool namePart = before.kind == TokenKind::Word || before.kind == TokenKind::QuotedName ||
                                  (before.kind == TokenKind::Other && before.text == u".");
            if (!namePart)
                break;
            --nameStart;
        }
        if (nameStart == nameEnd || IsWord(tokens[nameStart], u"DateValue"))
            continue;
        tokens.insert(nameEnd, {TokenKind::Close, u")"_s});
        tokens.insert(nameStart, {TokenKind::Open, u"("_s});
        tokens.insert(nameStart, {TokenKind::Word, u"DateValue"_s});
        i += 3;
    }
}

// ---- CREATE TABLE ----

struct ColumnType {
    QString sql;
    bool yesNo = false;
};

ColumnType TranslateColumnType(const QString& table, const QString& column, const QString& type, int length)
{
    const QString t = type.toUpper();
    if (t == u"TEXT" || t == u"VARCHAR" || t == u"CHAR")
        return {TextColumnSql(table, column, length > 0 ? length : 255, true)};
    if (t == u"MEMO" || t == u"LONGTEXT")
        return {TextColumnSql(table, column, 0, true)};
    if (t == u"BIT" || t == u"YESNO" || t == u"LOGICAL")
        return {YesNoColumnSql(column), true};
    if (t == u"BYTE")
        return {ByteColumnSql(table, column)};
    if (t == u"LONG" || t == u"INTEGER" || t == u"INT" || t == u"SHORT" || t == u"COUNTER")
        return {column + u" INTEGER"_s};
    if (t == u"DOUBLE" || t == u"SINGLE" || t == u"FLOAT" || t == u"CURRENCY")
        return {column + u" REAL"_s};
    return {column + u' ' + type};
}

bool TranslateCreateTable(const QList<Token>& tokens, TranslatedSql& result)
{
    QList<qsizetype> words;
    for (qsizetype i = 0; i < tokens.size(); ++i)
        if (tokens[i].kind != TokenKind::Space)
            words.append(i);
    if (words.size() < 4 || !IsWord(tokens[words[0]], u"CREATE") || !IsWord(tokens[words[1]], u"TABLE"))
        return false;
    const QString table = tokens[words[2]].text;
    if (tokens[words[3]].kind != TokenKind::Open)
        return false;

    // Column definitions: the comma-separated parts inside the outer brackets.
    QList<QList<Token>> parts(1);
    int depth = 0;
    qsizetype close = -1;
    for (qsizetype i = words[3] + 1; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        if (token.kind == TokenKind::Open)
            ++depth;
        if (token.kind == TokenKind::Close && depth-- == 0) {
            close = i;
            break;
        }
        if (token.kind == TokenKind::Comma && depth == 0)
            parts.append(QList<Token>());
        else if (token.kind != TokenKind::Space || !parts.last().isEmpty())
            parts.last().append(token);
    }
    if (close < 0)
        return false;

    QStringList definitions;
    for (QList<Token> part : parts) {
        while (!part.isEmpty() && part.last().kind == TokenKind::Space)
            part.removeLast();
        if (part.isEmpty())
            return false;
        if (IsWord(part[0], u"CONSTRAINT") || IsWord(part[0], u"PRIMARY") || IsWord(part[0], u"UNIQUE")) {
            definitions.append(Join(part, 0, part.size()));
            continue;
        }
        QList<Token> significant;
        std::copy_if(part.begin(), part.end(), std::back_inserter(significant),
                     [](const Token& t) { return t.kind != TokenKind::Space; });
        if (significant.size() < 2)
            return false;
        const QString column = significant[0].text;
        int length = 0;
        qsizetype rest = 2;
        if (significant.size() >= 5 && significant[2].kind == TokenKind::Open &&
            significant[3].kind == TokenKind::Number && significant[4].kind == TokenKind::Close) {
            length = significant[3].text.toInt();
            rest = 5;
        }
        ColumnType type = TranslateColumnType(table, column, significant[1].text, length);
        for (qsizetype k = rest; k < significant.size(); ++k)
            type.sql += u' ' + significant[k].text;
        definitions.append(type.sql);
        if (type.yesNo)
            result.followUps += YesNoTriggersSql(table, column);
    }
    result.sql = u"CREATE TABLE "_s + table + u" ("_s + definitions.join(u", "_s) + u')' +
                 Join(tokens, close + 1, tokens.size());
    return true;
}

} // namespace

TranslatedSql TranslateJetSql(const QString& jetSql)
{
    QList<Token> tokens = Tokenize(jetSql);
    TranslatedSql result;
    if (TranslateCreateTable(tokens, result))
        return result;
    WrapDateValueComparisons(tokens);
    result.sql = ContainsXor(tokens) ? RewriteXor(tokens, 0, tokens.size()) : Join(tokens, 0, tokens.size());
    return result;
}

QString TextColumnSql(const QString& table, const QString& column, int maxLength, bool allowEmpty)
{
    QString sql = column + u" TEXT COLLATE NOCASE"_s;
    if (!allowEmpty)
        sql += u" CONSTRAINT \"empty:%1.%2\" CHECK(%2<>'')"_s.arg(table, column);
    if (maxLength > 0)
        sql += u" CONSTRAINT \"size:%1.%2\" CHECK(length(%2)<=%3)"_s.arg(table, column).arg(maxLength);
    return sql;
}

QString ByteColumnSql(const QString& table, const QString& column)
{
    return u"%2 INTEGER CONSTRAINT \"range:%1.%2\" CHECK(%2 BETWEEN 0 AND 255)"_s.arg(table, column);
}

QString YesNoColumnSql(const QString& column) { return column + u" INTEGER NOT NULL DEFAULT 0"_s; }

QStringList YesNoTriggersSql(const QString& table, const QString& column)
{
    // Jet keeps -1 for true whatever non-zero value was written (the editor
    // and the import write 255), so "=-1" and "<>0" both find the true rows.
    const QString body = u"WHEN NEW.%2 NOT IN (0, -1) BEGIN UPDATE %1 SET %2=-1 WHERE rowid=NEW.rowid; END"_s
                             .arg(table, column);
    return {u"CREATE TRIGGER \"yesno_ins_%1_%2\" AFTER INSERT ON %1 FOR EACH ROW "_s.arg(table, column) + body,
            u"CREATE TRIGGER \"yesno_upd_%1_%2\" AFTER UPDATE OF %2 ON %1 FOR EACH ROW "_s.arg(table, column) +
                body};
}

} // namespace heft
