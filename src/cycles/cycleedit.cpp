#include "cycleedit.h"

#include "core/roman.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {
// A new cycle is proposed to span this many entry numbers.
constexpr int ProposedSpan = 50;
} // namespace

CycleRow ProposeNextCycle(int lastNr, const CycleRow& last)
{
    const auto lastEnd = static_cast<qint64>(Val(last.NrBis));
    CycleRow next;
    next.Zyklus = NumberToRoman(lastNr + 1);
    next.NrVon = QString::number(lastEnd + 1);
    next.NrBis = QString::number(lastEnd + ProposedSpan);
    next.ZeitVon = last.ZeitBis;
    next.ZeitBis = last.ZeitBis;
    next.Bezeichnung = last.Bezeichnung;
    next.Zyklusbereich = last.Zyklusbereich;
    return next;
}

bool CycleBoxAcceptsKey(CycleBox box, const QString& typed)
{
    if (box == CycleBox::Zyklus)
        return false;
    if (typed.isEmpty() || !typed.front().isPrint())
        return true;
    const QChar c = typed.front();
    switch (box) {
    case CycleBox::NrVon:
    case CycleBox::NrBis: return c >= u'0' && c <= u'9';
    case CycleBox::ZeitVon:
    case CycleBox::ZeitBis:
        // A year before the series' era is negative; the sign may be typed
        // anywhere, as the box never checks where it stands.
        return (c >= u'0' && c <= u'9') || c == u'-';
    default: return true;
    }
}

CycleBox CheckCycleInput(CycleRow& input)
{
    // An empty number box gets a 0 to start from and stops the check there.
    const auto zeroIfEmpty = [](QString& value) {
        if (!value.isEmpty())
            return false;
        value = u"0"_s;
        return true;
    };
    if (Trim(input.Bezeichnung).isEmpty())
        input.Bezeichnung = u"*** Keine ***"_s;
    if (zeroIfEmpty(input.NrVon))
        return CycleBox::NrVon;
    if (zeroIfEmpty(input.NrBis))
        return CycleBox::NrBis;
    // Compared as texts, so that 900 counts as greater than 1000; the
    // program has always done so and users know the correction it makes.
    if (input.NrVon > input.NrBis) {
        input.NrVon = input.NrBis;
        return CycleBox::NrVon;
    }
    if (zeroIfEmpty(input.ZeitVon))
        return CycleBox::ZeitVon;
    if (zeroIfEmpty(input.ZeitBis))
        return CycleBox::ZeitBis;
    return CycleBox::None;
}

QString InsertCycleSql(const CycleRow& row)
{
    return u"INSERT INTO ZyklusListe (Zyklus, NrVon, NrBis, ZeitVon, ZeitBis, Bezeichnung, Zyklusbereich) "
           "VALUES ('%1', %2, %3, %4, %5, '%6', '%7');"_s.arg(QuoteSql(row.Zyklus), row.NrVon, row.NrBis, row.ZeitVon,
                                                              row.ZeitBis, QuoteSql(row.Bezeichnung),
                                                              QuoteSql(row.Zyklusbereich));
}

QString UpdateCycleSql(const CycleRow& row)
{
    return u"UPDATE ZyklusListe SET NrVon=%1, NrBis=%2, ZeitVon=%3, ZeitBis=%4, Bezeichnung='%5', "
           "Zyklusbereich='%6' WHERE Zyklus='%7';"_s.arg(row.NrVon, row.NrBis, row.ZeitVon, row.ZeitBis,
                                                         QuoteSql(row.Bezeichnung), QuoteSql(row.Zyklusbereich),
                                                         QuoteSql(row.Zyklus));
}

} // namespace heft
