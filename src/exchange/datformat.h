#pragma once
// The three exchange files (.dat list, _Details.dat, {series}-Zyklus.dat):
// their header lines, the records the reader hands out, and the writer side
// that turns values into lines. A record is a run of fields, each written as
// "value"; with nothing escaped, so a value holding ";" cuts its field there.

#include "core/schema.h"

#include <QString>

#include <array>

namespace heft {

enum class DatKind { None, List, Cycle, Details };

QString ListHeader(const QString& series, const QString& kind);
QString CycleHeader(const QString& series);
QString DetailsHeader(const QString& series);
// Line 1 of a file, compared as a whole line and case-sensitive.
DatKind KindOfHeader(const QString& line, const QString& series, const QString& kind);

// One bit per field, 1 for field 1, 2 for field 2, 4 for field 3 and so on.
// A field's bit is set when it was cut before anything on its line failed.
constexpr unsigned FieldBit(int field)
{
    return 1u << (field - 1);
}
// Nr, Autor and Titel make a list line good; a cycle line needs its first six
// fields; a details line only its Nr.
constexpr unsigned GoodListBits = FieldBit(1) | FieldBit(2) | FieldBit(3);
constexpr unsigned GoodCycleBits = FieldBit(1) | FieldBit(2) | FieldBit(3) | FieldBit(4) | FieldBit(5) | FieldBit(6);
constexpr unsigned GoodDetailsBits = FieldBit(1);

constexpr int MaxLinks = 16;

// Texts are as the reader cut them (limits applied, nothing quoted for SQL).
struct ListRecord {
    QString Nr;
    QString Autor;
    QString Titel;
    QString Auflage;         // "-" when the field was empty
    int AuflageNumber = 0;   // 0 = not stated, also for values outside 1..MaxAuflage
    QString Zyklus;          // upper-case roman numeral or "- - -"
    QString GL;              // as read, "Nein" unless it said "ja" in any case
    bool Gelesen = false;    // written to the database as 255 or 0
    QString Bemerkung;
    unsigned Bits = 0;
    // The fields whose text was empty on this line, before "-" and "Nein"
    // stood in for them: an update of only the imported columns leaves
    // those columns alone.
    unsigned EmptyBits = 0;
    bool IsGood() const { return (Bits & GoodListBits) == GoodListBits; }
    bool IsEmpty(int field) const { return (EmptyBits & FieldBit(field)) != 0; }
};

struct CycleRecord {
    QString Zyklus;
    QString NrVon;
    QString NrBis;
    QString ZeitVon;
    QString ZeitBis;
    QString Bezeichnung;
    QString Zyklusbereich;
    unsigned Bits = 0;
    bool IsGood() const { return (Bits & GoodCycleBits) == GoodCycleBits; }
};

struct DatLink {
    int Num = 0;
    QString Text;
    QString Serie;
};

struct DetailsRecord {
    QString Nr;
    QString Ersterscheinung;
    QString Untertitel;
    std::array<QString, 9> Persons;
    QString Inhalt;
    QString TiBiZeichner;
    QString IlluZeichner;
    QString RZ;              // as read
    bool Rz = false;         // "ja" in any case
    QString RiZeObjekt;
    QString RiZeZeichner;
    // False when the rest of the line behind field 18 was only ";: then the
    // entry's Status and Links are to be left as they are.
    bool HasStatus = false;
    std::array<QString, StatusCount> Status; // index 0 is ENum 1
    // Slots behind LinksRead keep what earlier lines left in them, as every
    // other field that a line lacks does.
    std::array<DatLink, MaxLinks> Links;
    int LinksRead = 0;
    unsigned Bits = 0;
    bool IsGood() const { return (Bits & GoodDetailsBits) == GoodDetailsBits; }
};

// "value"; as one field.
QString DatField(const QString& value);
// The stored date as "yyyy-mm-dd" when it reads as a date, else as it stands.
QString FormatDatDate(const QString& value);

// A list line as the export writes it: Nr, Autor, Titel, Zyklus and Bemerkung
// trimmed, an empty Auflage as "-", Gelesen as "Ja" or "Nein".
QString ListLine(const ListRecord& record);
// All seven fields trimmed.
QString CycleLine(const CycleRecord& record);
// Fields 1 to 18 (the date through FormatDatDate, Rz as "Ja" or empty), the
// 19 status values and the first LinksRead link triples.
QString DetailsLine(const DetailsRecord& record);

} // namespace heft
