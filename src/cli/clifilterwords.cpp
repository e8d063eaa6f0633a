#include "clifilterwords.h"

#include "clicommands.h"

#include "core/config.h"
#include "core/session.h"
#include "filter/filterfields.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// One criteria row from "FIELD:COMPARE:VALUE" in the words of the filter
// window: list fields take the list entry (or the pattern for ÄHNLICH),
// Auflage "Keine" or "-2-", Gelesen "Ja"/"Nein", dates dd.mm.yyyy. The value
// may itself hold colons. Empty text tells what was not understood.
QString ParseFilterRow(Session& session, const QString& argument, FilterCriterion& row)
{
    const qsizetype first = argument.indexOf(u':');
    const qsizetype second = first < 0 ? -1 : argument.indexOf(u':', first + 1);
    if (second < 0)
        return u"Kriterium ohne FELD:VERGLEICH:WERT: "_s + argument;
    const QString name = argument.left(first);
    const QString compare = argument.mid(first + 1, second - first - 1);
    const QString value = argument.mid(second + 1);

    const auto& fields = FilterFields();
    const auto field =
        std::find_if(fields.begin(), fields.end(), [&](const FilterField& f) { return f.entry == name; });
    if (field == fields.end())
        return u"Unbekanntes Feld: "_s + name;
    row.field = static_cast<int>(field - fields.begin());
    row.compare = static_cast<int>(CompareWords(row.field).indexOf(compare));
    if (row.compare < 0)
        return u"Vergleich passt nicht zum Feld %1: %2"_s.arg(name, compare);

    QStringList entries;
    int* index = nullptr;
    switch (field->editor) {
    case FilterEditor::Txt:
        row.text = value;
        return {};
    case FilterEditor::Dtp:
        row.date = QDate::fromString(value, u"dd.MM.yyyy"_s);
        return row.date.isValid() ? QString() : u"Kein Datum: "_s + value;
    case FilterEditor::Aufl:
        entries = AuflageEntries(session.Config.MaxAuflage);
        index = &row.auflageIndex;
        break;
    case FilterEditor::Gel:
        entries = YesNoEntries();
        index = &row.yesNoIndex;
        break;
    case FilterEditor::Univ:
        entries = ValueListEntries(*session.CollectionDb, row.field);
        row.listCount = static_cast<int>(entries.size());
        // For ÄHNLICH the list is hidden and stands at its first entry.
        if (row.compare == 2) {
            row.text = value;
            return {};
        }
        row.listText = value;
        index = &row.listIndex;
        break;
    }
    *index = static_cast<int>(entries.indexOf(value));
    return *index < 0 ? u"Nicht in der Liste von %1: %2"_s.arg(name, value) : QString();
}

} // namespace

const QString& NothingFoundText()
{
    static const QString text =
        u"Zu den gegebenen Filter-Kriterien konnten in der Datenbank leider keine Einträge gefunden werden.\n"_s;
    return text;
}

int ParseFilterWords(Session& session, const QStringList& words, QList<FilterCriterion>& rows, QTextStream& err)
{
    if (words.isEmpty() || words.size() % 2 == 0 || words.size() > 2 * FilterRowCount - 1) {
        err << CliUsage();
        return 2;
    }
    DbError error;
    ReadConfiguration(session, &error);
    for (qsizetype i = 0; i < words.size(); i += 2) {
        FilterCriterion row;
        if (const QString problem = ParseFilterRow(session, words[i], row); !problem.isEmpty()) {
            err << problem << u'\n';
            return 2;
        }
        if (i + 1 < words.size()) {
            row.join = static_cast<int>(JoinWords().indexOf(words[i + 1]));
            if (row.join <= 0) {
                err << u"Unbekanntes Verknüpfungswort: "_s << words[i + 1] << u'\n';
                return 2;
            }
        }
        rows << row;
    }
    return 0;
}

int GenerateFilter(Session& session, const QList<FilterCriterion>& rows, FilterOutcome& outcome, QTextStream& err)
{
    outcome = FilterGenerator(session).Generate(rows);
    if (!outcome.rejected)
        return 0;
    err << u"Ungültiger Zyklus in Kriterium %1: %2\n"_s.arg(outcome.rejectedRow + 1)
               .arg(outcome.shownTexts[outcome.rejectedRow]);
    return 1;
}

int FilterFromWords(Session& session, const QStringList& words, FilterOutcome& outcome, QTextStream& err)
{
    QList<FilterCriterion> rows;
    if (const int code = ParseFilterWords(session, words, rows, err))
        return code;
    return GenerateFilter(session, rows, outcome, err);
}

} // namespace heft
