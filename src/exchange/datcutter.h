#pragma once
// Cuts the fields off the front of one exchange line. Each cut has two steps
// that can each fail on their own when the separator is missing: taking the
// value (which then keeps what the variable held from the line before) and
// shortening the rest of the line. Once anything failed on a line, no later
// field of that line counts as read, even if its own cut works.

#include <QString>

namespace heft {

class DatCutter {
public:
    // No limit on a field's length.
    static constexpr qsizetype NoLimit = -1;

    // Where a field ends: at ";" (closing quote, separator and the next
    // field's opening quote) or at "; alone. The rest of the line loses
    // three characters behind the value either way.
    enum class Separator { Closed, Open };
    // Guarded: the rest of the line is never made shorter than nothing, so
    // a missing separator there raises no failure of its own.
    enum class Rest { Plain, Guarded };

    explicit DatCutter(QString line) : m_rest(std::move(line)) {}

    // The first field of a line: cut at ";" and then without its opening
    // quote. Returns whether the field counts as read.
    bool CutFirst(QString& value, qsizetype limit);
    bool Cut(QString& value, qsizetype limit, Separator separator = Separator::Closed, Rest rest = Rest::Plain);
    // The last field of a list or cycle record, cut at ";. A value that
    // itself begins with "; (and is more than that) is taken whole.
    bool CutLast(QString& value, qsizetype limit);

    const QString& RestOfLine() const { return m_rest; }
    // Length of the value in front of the separator of the last cut, -1 when
    // the separator was missing.
    qsizetype LastLength() const { return m_n; }
    // Marks the line as failed (a value that could not be converted).
    void Fail() { m_failed = true; }

private:
    void TakeValue(QString& value, qsizetype length);

    QString m_rest;
    qsizetype m_n = 0;
    bool m_failed = false;
};

} // namespace heft
