#include "columnfill.h"

#include "core/changeunit.h"
#include "core/roman.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "core/textfuncs.h"
#include "details/attributecatalog.h"
#include "mainwin/entrylist.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The cycle of an entry that belongs to none.
const QString NoCycle = u"- - -"_s;
// A cycle number beyond this has no cycle behind it.
constexpr int HighestCycle = 999;

// cmb_choose index of the first target no grid shows.
constexpr int FirstHiddenTarget = 4;

const std::vector<FillTarget>& Targets()
{
    static const std::vector<FillTarget> targets = [] {
        std::vector<FillTarget> list{
            {u"Auflage"_s, FillEditor::Aufl, 0, ColAuflage, 0},
            {u"Zyklus"_s, FillEditor::Text, 8, ColZyklus, 0},
            {u"Gelesen"_s, FillEditor::Gel, 0, ColGelesen, 0},
            {u"Bemerkung"_s, FillEditor::Text, 64, ColBemerkung, 0},
            {u"TiBiZeichner"_s, FillEditor::Univf, 0, -1, 0},
            {u"IlluZeichner"_s, FillEditor::Univf, 0, -1, 0},
        };
        // The attributes that can be filled, in ENum order: numbers are
        // typed into txt_1 with the limit of the attribute's own editor,
        // texts are chosen or typed in cmb_univf.
        for (const StatusAttribute& attribute : StatusCatalog()) {
            if (attribute.fillLabel.isEmpty())
                continue;
            if (IsNumericStatus(attribute.enumber))
                list.push_back({attribute.fillLabel, FillEditor::Text, attribute.maxInput, -1, attribute.enumber});
            else
                list.push_back({attribute.fillLabel, FillEditor::Univf, 0, -1, attribute.enumber});
        }
        return list;
    }();
    return targets;
}

// The value worked out once per run: for the grid targets the cell text
// and the assignment of the update, for the others the value written.
struct PreparedValue {
    QString gridText;
    QString sql;
};

PreparedValue Prepare(const FillRequest& request)
{
    const FillTarget& target = FillTargetAt(request.target);
    switch (target.gridColumn) {
    case ColAuflage:
        return {request.listIndex == 0 ? QString() : QString::number(request.listIndex),
                u"Auflage=%1"_s.arg(request.listIndex)};
    case ColZyklus: {
        const QString cycle = request.text.toUpper();
        return {cycle, u"Zyklus='%1'"_s.arg(cycle)};
    }
    case ColGelesen:
        // The first entry of cmb_gel is "Ja".
        return request.listIndex == 0 ? PreparedValue{ReadMarkText(), u"GL=-1"_s} : PreparedValue{{}, u"GL=0"_s};
    case ColBemerkung:
        return {request.text, u"Bemerkung='%1'"_s.arg(QuoteSql(request.text))};
    default:
        break;
    }
    if (target.enumber != 0 && IsNumericStatus(target.enumber))
        return {{}, StoredStatusValue(target.enumber, NumericFillText(target.enumber, request.text))};
    // An attribute longer than its column would be refused by the file as a
    // whole; it is cut as the attribute's own text box cuts it.
    const QString text = Trim(request.text);
    return {{}, target.enumber != 0 ? text.left(StatusValueLength) : text};
}

// The statements of one entry, then its stamp. Values for Gestaltung and
// Status are not quoted: an apostrophe makes them fail, quietly, under the
// caption of this window.
void WriteEntry(Session& session, const FillTarget& target, const PreparedValue& value, int nr)
{
    // All parts go in with one arg() call: a typed "%1" must stay text.
    const QString number = QString::number(nr);
    if (target.gridColumn >= 0) {
        session.CurrentSql = u"UPDATE HEFTLIST SET %1 WHERE Nr=%2;"_s.arg(value.sql, number);
        ExecuteSql(session);
    } else if (target.enumber == 0) {
        // An entry has at most one Gestaltung row; the insert fails when
        // there is one already.
        session.CurrentSql =
            u"INSERT INTO Gestaltung (Nr, %1) VALUES (%2, '%3');"_s.arg(target.label, number, value.sql);
        if (ExecuteSql(session) != ExecuteDone) {
            session.CurrentSql =
                u"UPDATE Gestaltung SET %1='%2' WHERE Nr=%3;"_s.arg(target.label, value.sql, number);
            ExecuteSql(session);
        }
    } else {
        const QString enumber = QString::number(target.enumber);
        session.CurrentSql = u"DELETE FROM Status WHERE ENum =%1 AND Nr=%2;"_s.arg(enumber, number);
        ExecuteSql(session);
        session.CurrentSql =
            u"INSERT INTO Status (Nr, ENum, StatusWert) VALUES (%1, %2, '%3');"_s.arg(number, enumber, value.sql);
        ExecuteSql(session);
    }
    StampLastChange(session, nr);
}

// The entries go to the file in batches: with a commit per statement a
// fill over ten thousand entries would mostly wait for the file. An entry's
// value and its stamp always land in the same batch, and a fill that is
// stopped commits what it did. A batch the file could not take (full disk,
// damaged or vanished file) ends the fill; it has been told to the user.
class Batches {
public:
    explicit Batches(Session& session) : m_db(*session.CollectionDb), m_unit(session) {}

    // False when the fill must end: its last batch was lost.
    bool EntryDone()
    {
        if (m_db.LostChange())
            return !m_unit.Commit();
        if (++m_entries % EntriesPerCommit != 0)
            return true;
        return !m_unit.CommitAndContinue();
    }

private:
    static constexpr int EntriesPerCommit = 100;
    const Database& m_db;
    ChangeUnit m_unit;
    int m_entries = 0;
};

int NrAt(const EntryGrid& grid, int row) { return grid.TextMatrix(row, ColNr).toInt(); }

// Sorts the grid by number unless it stands so already; true if it had to.
bool PutInNumberOrder(EntryGrid& grid)
{
    for (int row = 2; row < grid.Rows(); ++row) {
        if (NrAt(grid, row) < NrAt(grid, row - 1)) {
            grid.Model().Sort(ColNr, SortNumericAscending);
            return true;
        }
    }
    return false;
}

// Both grids stand in number order and the walk goes upward, so the row of
// an entry in the full list lies above the one found last. 0 if it isn't
// there, which a filter list taken from the full list never causes.
int FindHeftlisteRow(const EntryGrid& heftliste, int below, const QString& nr)
{
    for (int row = below - 1; row >= 1; --row) {
        if (heftliste.TextMatrix(row, ColNr) == nr)
            return row;
    }
    return 0;
}

} // namespace

QString ColumnFillCaption() { return u"Spalte füllen mit ..."_s; }

std::span<const FillTarget> FillTargets() { return Targets(); }

const FillTarget& FillTargetAt(int target)
{
    Q_ASSERT(target >= 0 && target < static_cast<int>(Targets().size()));
    return Targets()[static_cast<size_t>(target)];
}

bool FillAcceptsKey(int target, const QString& typed)
{
    if (typed.isEmpty() || !typed.front().isPrint())
        return true;
    const FillTarget& t = FillTargetAt(target);
    const QChar c = typed.front();
    if (t.gridColumn == ColZyklus)
        return (c >= u'0' && c <= u'9') || IsRomanKey(c.unicode());
    if (t.enumber != 0)
        return AcceptsStatusKey(t.enumber, typed);
    return true;
}

QString FillSuggestionSql(int target)
{
    const FillTarget& t = FillTargetAt(target);
    if (t.editor != FillEditor::Univf)
        return {};
    if (t.enumber == 0)
        return u"SELECT DISTINCT %1 FROM Gestaltung ORDER BY %1;"_s.arg(t.label);
    // The list index less four is the ENum only for the first three text
    // attributes; from "Verlag" on the suggestions are those of the
    // attribute before. Only the offer is off, never what is written.
    return u"SELECT DISTINCT StatusWert FROM Status WHERE ENum=%1 ORDER BY StatusWert;"_s.arg(
        target - FirstHiddenTarget);
}

QStringList FillSuggestions(Database& db, int target)
{
    QStringList values;
    Query query = db.Select(FillSuggestionSql(target));
    while (query.Next()) {
        const QString value = Trim(query.Text(0));
        if (!value.isEmpty())
            values << value;
    }
    return values;
}

CycleInput NormalizeCycleInput(const QString& typed)
{
    const QString text = typed.toUpper();
    // The empty text counts as roman elsewhere; here it means "no cycle",
    // which must be confirmed like any other text that isn't a cycle.
    if (!text.isEmpty() && (IsRomanText(text) || text == NoCycle))
        return {text, true};
    const double number = Val(text);
    if (number < 1 || number > HighestCycle)
        return {NoCycle, false};
    return {NumberToRoman(static_cast<int>(number)), true};
}

QString NumericFillText(int enumber, const QString& typed)
{
    const StatusCheck check = ValidateStatusValue(enumber, typed);
    return check.refused ? QString() : check.value;
}

int FillColumn(Session& session, EntryList& list, const FillRequest& request, const FillFeedback& feedback)
{
    const FillTarget& target = FillTargetAt(request.target);
    const PreparedValue value = Prepare(request);
    EntryGrid& filter = list.Filter;
    EntryGrid& heftliste = list.Heftliste;
    const bool inGrids = target.gridColumn >= 0;
    // One pass walks both grids together, so both must stand in number
    // order. The full list gets its own sort back when the filter ends.
    bool restoreFilterSort = false;
    if (inGrids) {
        if (PutInNumberOrder(heftliste))
            list.ResortOnReturn = true;
        restoreFilterSort = PutInNumberOrder(filter);
    }

    const int rows = filter.Rows();
    int heftlisteRow = heftliste.Rows();
    int handled = 0;
    Batches batches(session);
    for (int row = rows - 1; row >= 1; --row) {
        if (row % 10 == 0)
            feedback.progress(rows - row);
        const QString nr = filter.TextMatrix(row, ColNr);
        if (inGrids) {
            filter.SetTextMatrix(row, target.gridColumn, value.gridText);
            if (const int found = FindHeftlisteRow(heftliste, heftlisteRow, nr); found > 0) {
                heftliste.SetTextMatrix(found, target.gridColumn, value.gridText);
                heftlisteRow = found;
            }
        }
        WriteEntry(session, target, value, nr.toInt());
        ++handled;
        if (!batches.EntryDone() || feedback.stopRequested())
            break;
    }
    // The current row is kept as a row number, so after the sort back the
    // same line of the list is current again.
    if (restoreFilterSort)
        list.ResortGrid();
    return handled;
}

int FillEntries(Session& session, const FillRequest& request, const QList<int>& numbers)
{
    const FillTarget& target = FillTargetAt(request.target);
    const PreparedValue value = Prepare(request);
    Batches batches(session);
    int handled = 0;
    for (auto nr = numbers.crbegin(); nr != numbers.crend(); ++nr) {
        WriteEntry(session, target, value, *nr);
        ++handled;
        if (!batches.EntryDone())
            break;
    }
    return handled;
}

} // namespace heft
