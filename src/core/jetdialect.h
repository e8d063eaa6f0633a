#pragma once
// Turns a statement in the Jet dialect the program writes into the SQLite
// text that means the same. Only what differs is touched:
// - a top-level XOR chain becomes a chain of "<>" on truth values, with
//   Jet's precedence (XOR binds loosest) and its NULL behaviour;
// - a column compared with DateValue(...) is compared as a date too;
// - CREATE TABLE column types (LONG, TEXT(n), BIT, BYTE, ...) become SQLite
//   types with the constraints that give Jet's errors, case-blind German
//   text order, and yes/no columns that always read -1 or 0.

#include <QString>
#include <QStringList>

namespace heft {

struct TranslatedSql {
    QString sql;
    // Statements to run after `sql` succeeded (the triggers of yes/no columns).
    QStringList followUps;
};

TranslatedSql TranslateJetSql(const QString& jetSql);

// Column definition pieces shared with the hand-written base schema, so that
// every table gets the same constraint names (which the error mapping reads).
QString TextColumnSql(const QString& table, const QString& column, int maxLength, bool allowEmpty);
QString ByteColumnSql(const QString& table, const QString& column);
QString YesNoColumnSql(const QString& column);
QStringList YesNoTriggersSql(const QString& table, const QString& column);

} // namespace heft
