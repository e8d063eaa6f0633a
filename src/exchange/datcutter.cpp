#include "datcutter.h"

#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

qsizetype Limited(qsizetype n, qsizetype limit)
{
    return limit == DatCutter::NoLimit ? n : MinOf(n, limit);
}

} // namespace

// Left() with a negative length is the failure that leaves the variable alone.
void DatCutter::TakeValue(QString& value, qsizetype length)
{
    if (length < 0)
        m_failed = true;
    else
        value = Left(m_rest, length);
}

bool DatCutter::Cut(QString& value, qsizetype limit, Separator separator, Rest rest)
{
    m_n = InStr(m_rest, separator == Separator::Closed ? u"\";\""_s : u"\";"_s) - 1;
    TakeValue(value, Limited(m_n, limit));
    qsizetype restLength = m_rest.size() - m_n - 3;
    if (rest == Rest::Guarded)
        restLength = MaxOf<qsizetype>(restLength, 0);
    if (restLength < 0)
        m_failed = true;
    else
        m_rest = Right(m_rest, restLength);
    return !m_failed;
}

bool DatCutter::CutFirst(QString& value, qsizetype limit)
{
    QString cut = value;
    const bool read = Cut(cut, limit);
    if (m_n >= 0)
        value = cut.mid(1);
    return read;
}

bool DatCutter::CutLast(QString& value, qsizetype limit)
{
    m_n = InStr(m_rest, u"\";"_s) - 1;
    if (m_n == 0 && m_rest != u"\";"_s)
        TakeValue(value, Limited(m_rest.size(), limit));
    else
        TakeValue(value, Limited(m_n, limit));
    return !m_failed;
}

} // namespace heft
