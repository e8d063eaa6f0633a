#pragma once
// The shape of a statement: its text with every string and number literal
// replaced by "?", and the literals in their order. Statements that differ
// only in their values share a shape, so the database can prepare a shape
// once and run it again with the values bound, which is what makes a long
// run of similar statements (an import, a fill) cheap.
//
// Only plain INSERT, UPDATE, DELETE and SELECT statements get a shape, and
// only where a bound value means exactly what the literal meant: nothing
// with ORDER BY or GROUP BY (a number there names a column), no literal in
// a SELECT's column list (it would change the column's name), and nothing
// the Jet dialect rewrites (XOR, DateValue). Quoted names, comments and
// parameters of the text's own also leave a statement without a shape.

#include <QList>
#include <QString>

#include <optional>

namespace heft {

struct SqlLiteral {
    bool isText = false;
    QString value; // a text without its quotes and with '' made one '
};

struct SqlShape {
    QString text;
    QList<SqlLiteral> literals;
};

std::optional<SqlShape> ShapeOf(const QString& sql);

} // namespace heft
