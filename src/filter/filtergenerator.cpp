#include "filtergenerator.h"

#include "filtercycles.h"
#include "filterfields.h"

#include "core/roman.h"
#include "core/session.h"
#include "core/textfuncs.h"

#include <array>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// SQL operator and the words of the sentence for each comparison word.
struct Operators {
    std::array<QString, 4> sql;
    std::array<QString, 4> word;
};

Operators CompareOperators()
{
    return {{u"="_s, u"<>"_s, u"<"_s, u">"_s}, {u" = "_s, u" ungleich "_s, u" kleiner als "_s, u" größer als "_s}};
}

Operators TextOperators()
{
    return {{u"="_s, u"<>"_s, u" LIKE "_s, {}}, {u" = "_s, u" ungleich "_s, u" ähnlich wie "_s, {}}};
}

// The change stamp carries the time of day behind the date; IST and
// UNGLEICH match the day by a pattern so that the time does not matter.
Operators StampOperators()
{
    return {{u" LIKE "_s, u" NOT LIKE "_s, u"<"_s, u">"_s},
            {u" = "_s, u" ungleich "_s, u" kleiner als "_s, u" größer als "_s}};
}

const std::array<QString, 4> JoinSql = {QString(), u"AND "_s, u"OR "_s, u"XOR "_s};
const std::array<QString, 4> JoinText = {QString(), u"UND "_s, u"ODER "_s, u"ENTWEDER ODER "_s};

constexpr int Ahnlich = 2;
constexpr int Kleiner = 2;
constexpr int Grosser = 3;
constexpr int Ungleich = 1;

bool HasStarAtAnEnd(const QString& text)
{
    return text.startsWith(u'*') || text.endsWith(u'*');
}

// For ÄHNLICH a plain word is searched anywhere in the text; a star at one
// end alone is the user's own pattern and stays as typed.
QString StarredForLike(const QString& text)
{
    return HasStarAtAnEnd(text) ? text : u"*"_s + text + u"*"_s;
}

QString YesNoSql(int index)
{
    return index == 0 ? u"-1 "_s : u"0 "_s;
}

QString YesNoWord(int index)
{
    return index == 0 ? u"Ja "_s : u"Nein "_s;
}

QString SqlString(const QString& value)
{
    return u"'"_s + QuoteSql(value) + u"' "_s;
}

QString StatusEnd(int eNum)
{
    return u"AND s.ENum=%1) "_s.arg(eNum);
}

// One row on its way into the two texts.
struct Condition {
    Operators ops = CompareOperators();
    QString left;
    QString right;
    QString keptRight;
};

// The right side of the value-list fields. The guard keeps the rows with an
// empty value out unless "<LEER>" (the last entry) is asked for; Autor has
// no "<LEER>" and no guard.
void ListCondition(const FilterField& f, const FilterCriterion& row, QString& shown, Condition& c)
{
    c.ops = TextOperators();
    if (row.compare == Ahnlich) {
        if (!shown.isEmpty())
            shown = StarredForLike(shown);
        c.right = SqlString(shown);
    } else if (row.listText == u"<LEER>") {
        c.right = u"'' "_s;
    } else {
        c.right = SqlString(row.listText);
    }
    c.keptRight = c.right;
    const bool notLast = row.listIndex < row.listCount - 1;
    switch (f.form) {
    case FilterForm::ListGuardG:
        if (notLast)
            c.right += u"AND "_s + c.left + u"<>'' "_s;
        break;
    case FilterForm::ListGuardL:
        if (notLast)
            c.right += u"AND l.LinkSerie<>'' "_s;
        break;
    case FilterForm::ListStatus:
        if (notLast)
            c.right += u"AND s.StatusWert<>'' "_s;
        c.right += StatusEnd(f.eNum);
        break;
    default:
        break;
    }
}

// Numbers stored as status texts are padded to seven digits so that the
// text comparison orders them as numbers; a longer value loses its front.
void PaddedCondition(const FilterField& f, const QString& shown, Condition& c)
{
    QString value = Trim(shown);
    if (value.isEmpty()) {
        c.right = u"'' "_s + StatusEnd(f.eNum);
        return;
    }
    if (f.form == FilterForm::Padded)
        value = Right(u"0000000"_s + value, 7);
    c.right = u"'"_s + value + u"' AND s.StatusWert<>'' "_s + StatusEnd(f.eNum);
}

QString IsoDate(const QDate& date)
{
    return date.toString(u"yyyy-MM-dd"_s);
}

// The sentence shows numbers and dates as typed, not as the SQL pads them.
QString SentenceRight(const FilterField& f, int field, const FilterCriterion& row, const QString& shown,
                      const Condition& c)
{
    switch (f.form) {
    case FilterForm::Padded:
    case FilterForm::StatusText:
        return field == 20 || field == 21 ? shown + u" € "_s : shown + u" "_s;
    case FilterForm::QuotedStatus:
        return SqlString(shown);
    case FilterForm::LendingDate:
    case FilterForm::DateValue:
    case FilterForm::Stamp:
        return row.date.toString(u"dd-MM-yyyy"_s) + u" "_s;
    case FilterForm::ListIndex:
        return row.auflageIndex == 0 ? u"Keine "_s : c.right;
    case FilterForm::Cycle:
        return c.left.startsWith(u'(') ? c.keptRight : c.right;
    case FilterForm::YesNo:
        return YesNoWord(row.yesNoIndex);
    case FilterForm::Person:
        return c.right + u" "_s;
    case FilterForm::ListGuardG:
    case FilterForm::ListGuardL:
    case FilterForm::ListStatus:
        return c.keptRight;
    default:
        return c.right;
    }
}

} // namespace

FilterGenerator::FilterGenerator(Session& session) : m_session(session) {}

const CycleList& FilterGenerator::Cycles()
{
    if (!m_cycles)
        m_cycles = ReadCycleList(*m_session.CollectionDb);
    return *m_cycles;
}

FilterOutcome FilterGenerator::Generate(const QList<FilterCriterion>& rows)
{
    FilterOutcome outcome;
    for (const FilterCriterion& row : rows)
        outcome.shownTexts << row.text;

    for (qsizetype i = 0; i < rows.size(); ++i) {
        const FilterCriterion& row = rows[i];
        const FilterField& f = FilterFields()[static_cast<size_t>(row.field)];
        QString& shown = outcome.shownTexts[i];
        Condition c;
        c.left = f.left.toString();

        switch (f.form) {
        case FilterForm::Number:
            if (Val(shown) > 99999)
                shown = u"99999"_s;
            c.right = shown + u" "_s;
            break;
        case FilterForm::Quoted:
        case FilterForm::QuotedStatus:
        case FilterForm::Person:
            c.ops = TextOperators();
            if (row.compare == Ahnlich)
                shown = StarredForLike(shown);
            c.right = SqlString(shown);
            if (f.form == FilterForm::QuotedStatus)
                c.right += StatusEnd(f.eNum);
            break;
        case FilterForm::Padded:
        case FilterForm::StatusText:
            PaddedCondition(f, shown, c);
            break;
        case FilterForm::ListIndex:
            c.right = QString::number(row.auflageIndex) + u" "_s;
            break;
        case FilterForm::YesNo:
            c.ops = TextOperators();
            c.right = YesNoSql(row.yesNoIndex);
            break;
        case FilterForm::DateValue:
            c.right = u"DateValue('"_s + row.date.toString(u"dd.MM.yyyy"_s) + u"') "_s;
            break;
        case FilterForm::Stamp:
            if (row.compare <= Ungleich) {
                c.ops = StampOperators();
                c.right = u"'"_s + IsoDate(row.date) + u"*' "_s + StatusEnd(f.eNum);
            } else {
                c.right = u"'"_s + IsoDate(row.date) + u"' "_s + StatusEnd(f.eNum);
            }
            break;
        case FilterForm::LendingDate:
            c.right = u"'"_s + IsoDate(row.date) + u"' AND s.StatusWert<>'' "_s + StatusEnd(f.eNum);
            break;
        case FilterForm::Cycle: {
            if (!NormaliseCycleText(shown)) {
                outcome.rejected = true;
                outcome.rejectedRow = static_cast<int>(i);
                outcome.where.clear();
                outcome.text.clear();
                return outcome;
            }
            c.right = u"'"_s + shown + u"' "_s;
            if ((row.compare == Kleiner || row.compare == Grosser) && shown != u"- - -") {
                c.keptRight = c.right;
                const CycleRange range = CyclesBeyond(Cycles(), RomanToNumber(shown), row.compare == Kleiner);
                c.ops.sql[static_cast<size_t>(row.compare)] = range.op;
                c.left = u"(h.Zyklus"_s;
                c.right = range.right + u") "_s;
            }
            break;
        }
        case FilterForm::List:
        case FilterForm::ListGuardG:
        case FilterForm::ListGuardL:
        case FilterForm::ListStatus:
            ListCondition(f, row, shown, c);
            break;
        }

        const QString& op = c.ops.sql[static_cast<size_t>(row.compare)];
        const size_t join = static_cast<size_t>(row.join);
        if (f.form == FilterForm::Person) {
            // A person may stand in any of the nine places: UNGLEICH must
            // hold for all of them, the other words for one.
            const QString glue = row.compare == Ungleich ? u"AND d.Person"_s : u"OR d.Person"_s;
            outcome.where += u"(d.Person1"_s + op + c.right;
            for (int j = 2; j <= 9; ++j)
                outcome.where += glue + QString::number(j) + op + c.right;
            outcome.where += u") "_s + JoinSql[join];
        } else {
            outcome.where += c.left + op + c.right + JoinSql[join];
        }

        QString right = SentenceRight(f, row.field, row, shown, c);
        const QString trimmed = right.trimmed();
        if (trimmed.isEmpty() || trimmed == u"''")
            right = u"<LEER> "_s;
        outcome.text += f.label.toString() + c.ops.word[static_cast<size_t>(row.compare)] + right + JoinText[join];
    }

    outcome.sql = u"SELECT DISTINCT h.nr, h.autor, h.titel, h.auflage, h.zyklus, h.gl, h.bemerkung "
                  "FROM ((((HEFTLIST h "
                  "LEFT JOIN DETAILS d ON h.nr=d.nr) "
                  "LEFT JOIN Gestaltung g ON h.nr=g.nr) "
                  "LEFT JOIN Status s ON h.nr=s.nr) "
                  "LEFT JOIN Links l ON h.nr=l.nr) "
                  "WHERE "_s +
                  outcome.where + u"ORDER BY h.Nr;"_s;
    return outcome;
}

} // namespace heft
