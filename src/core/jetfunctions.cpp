#include "jetfunctions.h"

#include <QDate>
#include <QRegularExpression>
#include <QStringList>

#include <sqlite3.h>
#include <unicode/ucol.h>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// ---- collation ----

int CompareGerman(void* collator, int length1, const void* text1, int length2, const void* text2)
{
    UErrorCode status = U_ZERO_ERROR;
    const UCollationResult result =
        ucol_strcollUTF8(static_cast<UCollator*>(collator), static_cast<const char*>(text1), length1,
                         static_cast<const char*>(text2), length2, &status);
    return result == UCOL_LESS ? -1 : result == UCOL_GREATER ? 1 : 0;
}

void DestroyCollator(void* collator) { ucol_close(static_cast<UCollator*>(collator)); }

// ---- LIKE ----

QChar Fold(QChar c) { return c.toCaseFolded(); }

// Matches one bracket class at pattern[p] (which is '['); advances p past
// it. An unclosed '[' is taken as a plain character.
bool MatchClass(QStringView pattern, qsizetype& p, QChar c)
{
    const qsizetype close = pattern.indexOf(u']', p + 2);
    if (close < 0) {
        ++p;
        return Fold(c) == u'[';
    }
    qsizetype i = p + 1;
    bool negate = false;
    if (pattern[i] == u'!' && i + 1 < close) {
        negate = true;
        ++i;
    }
    bool found = false;
    const QChar folded = Fold(c);
    for (; i < close; ++i) {
        if (i + 2 < close && pattern[i + 1] == u'-') {
            if (folded >= Fold(pattern[i]) && folded <= Fold(pattern[i + 2]))
                found = true;
            i += 2;
        } else if (Fold(pattern[i]) == folded) {
            found = true;
        }
    }
    p = close + 1;
    return found != negate;
}

// One pattern element against text[t]; p is advanced past the element.
bool MatchOne(QStringView pattern, qsizetype& p, QChar c)
{
    const QChar element = pattern[p];
    if (element == u'[')
        return MatchClass(pattern, p, c);
    ++p;
    if (element == u'?')
        return true;
    if (element == u'#')
        return c.isDigit();
    return Fold(element) == Fold(c);
}

void LikeFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    auto text = [](sqlite3_value* value) {
        return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(value)),
                                 sqlite3_value_bytes(value));
    };
    sqlite3_result_int(context, JetLike(text(arguments[0]), text(arguments[1])) ? 1 : 0);
}

void DateValueFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    sqlite3_value* value = arguments[0];
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        sqlite3_result_value(context, value);
        return;
    case SQLITE_TEXT:
        if (const auto days = JetDateValue(QString::fromUtf8(
                reinterpret_cast<const char*>(sqlite3_value_text(value)), sqlite3_value_bytes(value)))) {
            sqlite3_result_int64(context, *days);
            return;
        }
        break;
    default:
        break;
    }
    sqlite3_result_null(context);
}

int MonthNumber(const QString& name)
{
    static const QStringList months = {u"januar"_s, u"februar"_s, u"märz"_s,     u"april"_s,
                                       u"mai"_s,    u"juni"_s,    u"juli"_s,     u"august"_s,
                                       u"september"_s, u"oktober"_s, u"november"_s, u"dezember"_s};
    const QString lower = name.toLower();
    for (int i = 0; i < months.size(); ++i)
        if (months[i] == lower || (lower.size() >= 3 && months[i].startsWith(lower)))
            return i + 1;
    if (lower == u"jänner")
        return 1;
    return 0;
}

} // namespace

bool JetLike(QStringView pattern, QStringView text)
{
    // Iterative match with one backtrack point for the last '*'.
    qsizetype p = 0, t = 0, starP = -1, starT = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            starP = ++p;
            starT = t;
            continue;
        }
        qsizetype next = p;
        if (p < pattern.size() && MatchOne(pattern, next, text[t])) {
            p = next;
            ++t;
            continue;
        }
        if (starP < 0)
            return false;
        p = starP;
        t = ++starT;
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

std::optional<qint64> JetDateValue(const QString& text)
{
    static const QRegularExpression german(u"^\\s*(\\d{1,2})\\.(\\d{1,2})\\.(\\d{2}|\\d{4})\\s*$"_s);
    static const QRegularExpression iso(u"^\\s*(\\d{4})-(\\d{1,2})-(\\d{1,2})(\\s.*)?$"_s);
    static const QRegularExpression named(u"^\\s*(\\d{4})-(\\p{L}+)-(\\d{1,2})\\s*$"_s);
    QDate date;
    if (const auto m = german.match(text); m.hasMatch()) {
        int year = m.captured(3).toInt();
        // Two-digit years as the system reads them: 00-29 this century.
        if (m.captured(3).size() == 2)
            year += year < 30 ? 2000 : 1900;
        date = QDate(year, m.captured(2).toInt(), m.captured(1).toInt());
    } else if (const auto i = iso.match(text); i.hasMatch()) {
        date = QDate(i.captured(1).toInt(), i.captured(2).toInt(), i.captured(3).toInt());
    } else if (const auto n = named.match(text); n.hasMatch()) {
        date = QDate(n.captured(1).toInt(), MonthNumber(n.captured(2)), n.captured(3).toInt());
    }
    if (!date.isValid())
        return std::nullopt;
    return QDate(1899, 12, 30).daysTo(date);
}

bool RegisterJetFunctions(sqlite3* db)
{
    UErrorCode status = U_ZERO_ERROR;
    UCollator* collator = ucol_open("de_DE", &status);
    if (U_FAILURE(status))
        return false;
    // Secondary strength: case-blind, but umlauts stay letters of their own
    // placed next to their base letters; digits and punctuation keep their
    // order, so zero-padded numbers still sort as numbers.
    ucol_setStrength(collator, UCOL_SECONDARY);
    sqlite3_create_collation_v2(db, "NOCASE", SQLITE_UTF8, collator, CompareGerman, DestroyCollator);
    const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    sqlite3_create_function(db, "like", 2, flags, nullptr, LikeFunction, nullptr, nullptr);
    sqlite3_create_function(db, "DateValue", 1, flags, nullptr, DateValueFunction, nullptr, nullptr);
    return true;
}

} // namespace heft
