#include "filterfields.h"

#include "core/database.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

using E = FilterEditor;
using F = FilterForm;
using K = FilterKeys;

// The status attribute of a field is its number minus 15.
constexpr int S(int field) { return field - 15; }

constexpr std::array<FilterField, FilterFieldCount> Fields{{
    {u"Nr", E::Txt, 4, F::Number, u"h.Nr", 0, K::Digits, false, u"Nummer"},
    {u"Autor", E::Univ, 3, F::List, u"h.Autor", 0, K::Free, false, u"Autor"},
    {u"Titel", E::Txt, 3, F::Quoted, u"h.Titel", 0, K::Free, false, u"Titel"},
    {u"Auflage", E::Aufl, 4, F::ListIndex, u"h.Auflage", 0, K::None, false, u"Auflage"},
    {u"Zyklus", E::Txt, 4, F::Cycle, u"h.Zyklus", 0, K::DigitsRoman, false, u"Zyklus"},
    {u"Gelesen", E::Gel, 1, F::YesNo, u"h.GL", 0, K::None, false, u"Gelesen"},
    {u"Bemerkung", E::Txt, 3, F::Quoted, u"h.Bemerkung", 0, K::Free, true, u"Bemerkung"},
    {u"Untertitel", E::Txt, 3, F::Quoted, u"d.Untertitel", 0, K::Free, true, u"Untertitel"},
    {u"Person", E::Txt, 3, F::Person, u"d.Person", 0, K::Free, true, u"Person"},
    {u"Inhalt", E::Txt, 3, F::Quoted, u"d.Inhalt", 0, K::Free, true, u"Inhalt"},
    {u"Datum", E::Dtp, 4, F::DateValue, u"d.Ersterscheinung", 0, K::None, false, u"Ersterscheinung"},
    {u"TiBiZeichner", E::Univ, 3, F::ListGuardG, u"g.TiBiZeichner", 0, K::Free, true, u"TiBiZeichner"},
    {u"IlluZeichner", E::Univ, 3, F::ListGuardG, u"g.IlluZeichner", 0, K::Free, true, u"IlluZeichner"},
    {u"Rißzeichnung", E::Gel, 1, F::YesNo, u"g.RZ", 0, K::None, false, u"Rißzeichnung"},
    {u"RiZeObjekt", E::Txt, 3, F::Quoted, u"g.RiZeObjekt", 0, K::Free, false, u"RiZeObjekt"},
    {u"RiZeZeichner", E::Univ, 3, F::ListGuardG, u"g.RiZeZeichner", 0, K::Free, true, u"RiZeZeichner"},
    {u"Änderung am", E::Dtp, 4, F::Stamp, u"(s.StatusWert", S(16), K::None, false, u"Letzte Änderung"},
    {u"Exemplare", E::Txt, 4, F::Padded, u"(s.StatusWert", S(17), K::Digits, true, u"Exemplare"},
    {u"Zustand", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(18), K::Free, true, u"Zustand"},
    {u"Verkäufer", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(19), K::Free, true, u"Verkäufer"},
    {u"Kaufpreis", E::Txt, 4, F::Padded, u"(s.StatusWert", S(20), K::Digits, true, u"Kaufpreis"},
    {u"Wert", E::Txt, 4, F::Padded, u"(s.StatusWert", S(21), K::Digits, true, u"Wert"},
    {u"Lagerort", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(22), K::Free, true, u"Lagerort"},
    {u"ISBN", E::Txt, 4, F::StatusText, u"(s.StatusWert", S(23), K::Digits, true, u"ISBN"},
    {u"Verlag", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(24), K::Free, true, u"Verlag"},
    {u"Seitenzahl", E::Txt, 4, F::Padded, u"(s.StatusWert", S(25), K::Digits, true, u"Seitenzahl"},
    {u"Format", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(26), K::Free, true, u"Format"},
    {u"Coverart", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(27), K::Free, true, u"Coverart"},
    {u"Genre", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(28), K::Free, true, u"Genre"},
    {u"Sprache", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(29), K::Free, true, u"Sprache"},
    {u"Übersetzer", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(30), K::Free, true, u"Übersetzer"},
    {u"Originaltitel", E::Txt, 3, F::QuotedStatus, u"(s.StatusWert", S(31), K::Free, true, u"Originaltitel"},
    {u"Verliehen an", E::Univ, 3, F::ListStatus, u"(s.StatusWert", S(32), K::Free, true, u"Verliehen an"},
    {u"Verleihdatum", E::Dtp, 4, F::LendingDate, u"(s.StatusWert", S(33), K::None, false, u"Verleihdatum"},
    {u"Kritik", E::Txt, 3, F::QuotedStatus, u"(s.StatusWert", S(34), K::Free, true, u"Kritik"},
    {u"Link zu", E::Txt, 4, F::Number, u"l.LinkNum", 0, K::Digits, false, u"Link zu"},
    {u"Linktext", E::Txt, 3, F::Quoted, u"l.LinkText", 0, K::Free, true, u"Linktext"},
    // The link series draws its list from a status attribute that does not
    // exist, so its list holds "<LEER>" alone; kept so, old filters rely on it.
    {u"Serienlink", E::Univ, 3, F::ListGuardL, u"l.LinkSerie", S(37), K::Free, true, u"Serienlink"},
}};

} // namespace

const std::array<FilterField, FilterFieldCount>& FilterFields()
{
    return Fields;
}

QStringList CompareWords(int field)
{
    switch (Fields[static_cast<size_t>(field)].compareCount) {
    case 4:
        return {u"IST"_s, u"UNGLEICH"_s, u"KLEINER"_s, u"GRÖßER"_s};
    case 3:
        return {u"IST"_s, u"UNGLEICH"_s, u"ÄHNLICH"_s};
    default:
        return {u"IST"_s};
    }
}

QStringList JoinWords()
{
    return {u"Keine"_s, u"UND"_s, u"ODER"_s, u"EXOR"_s};
}

QStringList AuflageEntries(int maxAuflage)
{
    QStringList entries{u"Keine"_s};
    for (int n = 1; n <= maxAuflage; ++n)
        entries << u"-%1-"_s.arg(n);
    return entries;
}

QStringList YesNoEntries()
{
    return {u"Ja"_s, u"Nein"_s};
}

QString ValueListSql(int field)
{
    const FilterField& f = Fields[static_cast<size_t>(field)];
    switch (f.form) {
    case FilterForm::List:
        return u"SELECT DISTINCT Autor FROM HEFTLIST ORDER BY Autor;"_s;
    case FilterForm::ListGuardG:
        return u"SELECT DISTINCT %1 FROM Gestaltung ORDER BY %1;"_s.arg(f.entry);
    case FilterForm::ListGuardL:
    case FilterForm::ListStatus:
        return u"SELECT DISTINCT StatusWert FROM Status WHERE ENum=%1 ORDER BY StatusWert;"_s.arg(f.eNum);
    default:
        return {};
    }
}

QStringList ValueListEntries(Database& db, int field)
{
    QStringList entries;
    Query query = db.Select(ValueListSql(field));
    while (query.Next()) {
        const QString value = Trim(query.Text(0));
        if (!value.isEmpty())
            entries << value;
    }
    if (Fields[static_cast<size_t>(field)].form != FilterForm::List)
        entries << u"<LEER>"_s;
    return entries;
}

} // namespace heft
