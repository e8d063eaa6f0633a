#pragma once
// One entry's details as plain values, the way frm_detail shows and saves
// them, and the reads that fill the window: the Details and Gestaltung rows,
// the names offered in its combo boxes, the last-change stamp.

#include "core/schema.h"

#include <QDate>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace heft {

class Session;

constexpr int PersonCount = 9;

struct DetailsRow {
    QDate Erstdatum;
    QString Untertitel;
    QStringList Persons; // PersonCount names, empty where none
    QString Inhalt;
};

struct GestaltungRow {
    QString TiBiZeichner;
    QString IlluZeichner;
    bool RZ = false;
    QString RiZeObjekt;
    QString RiZeZeichner;
};

struct LinkValue {
    int Number = 0;
    QString Text;
    QString Series;
};

struct DetailValues {
    int Nr = 0;
    DetailsRow Details;
    GestaltungRow Gestaltung;
    QStringList Status; // StatusCount stored values, ENum 1 first
    QList<LinkValue> Links; // in the order they are numbered
};

// The entry's rows; nothing when there is none (or it can't be read).
std::optional<DetailsRow> ReadDetailsRow(Session& session, int nr);
std::optional<GestaltungRow> ReadGestaltungRow(Session& session, int nr);

// Every name used so far, trimmed, without empty ones, for the combo boxes:
// persons from any of the nine columns, artists from one column of
// Gestaltung (TiBiZeichner, IlluZeichner or RiZeZeichner).
QStringList PersonNames(Session& session);
QStringList ArtistNames(Session& session, const QString& column);

// The stamp of attribute 1, if the entry has exactly one.
std::optional<QString> ReadLastChange(Session& session, int nr);

// The stored attribute values of the entry by ENum (1 to StatusCount); an
// attribute without a row is missing.
QMap<int, QString> ReadStatusValues(Session& session, int nr);
// The entry's links in the order they are numbered.
QList<LinkValue> ReadLinks(Session& session, int nr);

} // namespace heft
