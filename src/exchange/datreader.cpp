#include "datreader.h"

#include "datcutter.h"

#include "core/roman.h"
#include "core/schema.h"
#include "core/textfuncs.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

using Separator = DatCutter::Separator;
using Rest = DatCutter::Rest;

constexpr qsizetype NoLimit = DatCutter::NoLimit;

// GL and RZ: "ja" in any case is yes.
bool IsJa(const QString& text)
{
    return text.compare(u"ja"_s, Qt::CaseInsensitive) == 0;
}

// Sets the field's bit when the cut counted.
void Mark(unsigned& bits, int field, bool read)
{
    if (read)
        bits |= FieldBit(field);
}

// A link number is a whole number; a text that is none fails the line and
// leaves the slot's number as it was.
void CutLinkNumber(DatCutter& cutter, int& number)
{
    QString text;
    cutter.Cut(text, NoLimit, Separator::Open);
    if (cutter.LastLength() < 0)
        return;
    if (IsNumeric(text))
        number = static_cast<int>(std::lround(Val(text)));
    else
        cutter.Fail();
}

} // namespace

const ListRecord& ListReader::Read(const QString& line)
{
    ListRecord& r = m_record;
    r.Bits = 0;
    DatCutter cutter(line);
    Mark(r.Bits, 1, cutter.CutFirst(r.Nr, NoLimit));
    Mark(r.Bits, 2, cutter.Cut(r.Autor, AuthorLength));
    Mark(r.Bits, 3, cutter.Cut(r.Titel, 50));
    Mark(r.Bits, 4, cutter.Cut(r.Auflage, NoLimit));
    Mark(r.Bits, 5, cutter.Cut(r.Zyklus, 8));
    Mark(r.Bits, 6, cutter.Cut(r.GL, NoLimit));
    Mark(r.Bits, 7, cutter.CutLast(r.Bemerkung, 64));

    r.EmptyBits = 0;
    int field = 1;
    for (const QString* value : {&r.Nr, &r.Autor, &r.Titel, &r.Auflage, &r.Zyklus, &r.GL, &r.Bemerkung})
        Mark(r.EmptyBits, field++, value->isEmpty());
    if (r.Auflage.isEmpty())
        r.Auflage = u"-"_s;
    const double auflage = Val(r.Auflage);
    r.AuflageNumber = auflage < 1 || auflage > m_limits.MaxAuflage ? 0 : static_cast<int>(auflage);
    r.Zyklus = r.Zyklus.toUpper();
    if (m_cycleCheck == CycleCheck::Roman && (r.Zyklus.isEmpty() || !IsRomanText(r.Zyklus)))
        r.Zyklus = u"- - -"_s;
    r.Gelesen = IsJa(r.GL);
    if (!r.Gelesen)
        r.GL = u"Nein"_s;
    return r;
}

const CycleRecord& CycleReader::Read(const QString& line)
{
    CycleRecord& r = m_record;
    r.Bits = 0;
    DatCutter cutter(line);
    Mark(r.Bits, 1, cutter.CutFirst(r.Zyklus, 9));
    Mark(r.Bits, 2, cutter.Cut(r.NrVon, 5));
    Mark(r.Bits, 3, cutter.Cut(r.NrBis, 5));
    Mark(r.Bits, 4, cutter.Cut(r.ZeitVon, NoLimit));
    Mark(r.Bits, 5, cutter.Cut(r.ZeitBis, NoLimit));
    Mark(r.Bits, 6, cutter.Cut(r.Bezeichnung, 50));
    Mark(r.Bits, 7, cutter.CutLast(r.Zyklusbereich, 50));
    return r;
}

const DetailsRecord& DetailsReader::Read(const QString& line)
{
    DetailsRecord& r = m_record;
    r.Bits = 0;
    r.LinksRead = 0;
    DatCutter cutter(line);
    int field = 1;
    Mark(r.Bits, field++, cutter.CutFirst(r.Nr, NoLimit));
    Mark(r.Bits, field++, cutter.Cut(r.Ersterscheinung, NoLimit, Separator::Closed, Rest::Guarded));
    Mark(r.Bits, field++, cutter.Cut(r.Untertitel, 128));
    for (QString& person : r.Persons)
        Mark(r.Bits, field++, cutter.Cut(person, 32));
    // From Inhalt on the reader looks for "; alone, so that a content text
    // may hold the separator of the fields before it.
    Mark(r.Bits, field++, cutter.Cut(r.Inhalt, m_limits.ContentLimit, Separator::Open, Rest::Guarded));
    Mark(r.Bits, field++, cutter.Cut(r.TiBiZeichner, 64));
    Mark(r.Bits, field++, cutter.Cut(r.IlluZeichner, 64));
    Mark(r.Bits, field++, cutter.Cut(r.RZ, NoLimit));
    Mark(r.Bits, field++, cutter.Cut(r.RiZeObjekt, 96));
    Mark(r.Bits, field++, cutter.Cut(r.RiZeZeichner, 64));
    r.Rz = IsJa(r.RZ);

    r.HasStatus = Trim(cutter.RestOfLine()) != u"\";"_s;
    if (!r.HasStatus)
        return r;
    for (QString& value : r.Status)
        cutter.Cut(value, 128, Separator::Open);
    // The last field of a line leaves exactly its value and "; behind, so a
    // longer rest holds another triple.
    while (r.LinksRead < MaxLinks && cutter.RestOfLine().size() > cutter.LastLength() + 2) {
        DatLink& link = r.Links[static_cast<size_t>(r.LinksRead)];
        CutLinkNumber(cutter, link.Num);
        cutter.Cut(link.Text, 128, Separator::Open);
        cutter.Cut(link.Serie, 48, Separator::Open);
        ++r.LinksRead;
    }
    return r;
}

} // namespace heft
