#include "reporttext.h"

#include "core/textfuncs.h"

#include <QStringList>

#include <cmath>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr qsizetype WrapWidth = 57;

// Shares are kept to nine places; the tenths of a percent are then rounded
// half away from zero, as the number format of the reports does.
double RoundedTo(double value, double scale) { return std::round(value * scale) / scale; }

} // namespace

QString PercentText(double fraction)
{
    const double tenths = std::round(RoundedTo(fraction * 1000, 1e6));
    return QString::number(tenths / 10, 'f', 1) + u'%';
}

QString RightAligned(qint64 number, int places) { return RightAligned(QString::number(number), places); }

QString RightAligned(const QString& text, int places) { return FormatMask(text, QString(places, u'@')); }

QString LeftAligned(const QString& text, int places) { return FormatMask(text, u'!' + QString(places, u'@')); }

QString AmountText(double amount) { return RightAligned(QString::number(RoundedTo(amount, 100), 'f', 2), 10); }

void ShareCounter::FormatCount(qint64 count, qint64 total)
{
    if (count == 0 || total == 0) {
        countText = count == 0 ? u"-"_s : QString::number(count);
        shareText = u" -  - "_s;
        share = 0;
        return;
    }
    countText = QString::number(count);
    share = RoundedTo(static_cast<double>(count) / static_cast<double>(total), 1e9);
    shareText = RightAligned(PercentText(share), 6);
    m_shareSum += static_cast<float>(share);
}

void ShareCounter::LastShareFix()
{
    if (m_shareSum != 1.0f)
        shareText = RightAligned(PercentText(1 - (static_cast<double>(m_shareSum) - share)), 6);
}

QString ShareCounter::Tail() const { return u':' + RightAligned(countText, 5) + u" ["_s + shareText + u']'; }

void ReportLines::Add(const QString& label, const QString& rest, const QString& labelTail)
{
    m_lines.append({label, labelTail, rest, true});
}

void ReportLines::AddPlain(const QString& text) { m_lines.append({{}, {}, text, false}); }

QString ReportLines::Text(bool endWithLineEnd) const
{
    qsizetype column = 0;
    for (const Line& line : m_lines)
        if (line.aligned)
            column = MaxOf(column, line.label.size() + line.labelTail.size());
    QStringList texts;
    for (const Line& line : m_lines) {
        if (!line.aligned) {
            texts << line.rest;
            continue;
        }
        const QString padding(column - line.label.size() - line.labelTail.size(), u' ');
        texts << line.label + padding + line.labelTail + line.rest;
    }
    return texts.join(LineEnd) + (endWithLineEnd ? LineEnd.toString() : QString());
}

void WrappedList::Append(const QString& piece)
{
    if (m_line.size() + piece.size() > WrapWidth) {
        m_text += m_line.left(m_line.size() - 1) + LineEnd;
        m_line.clear();
    }
    m_line += piece;
}

QString WrappedList::Finish() const
{
    QString text = m_text + m_line;
    if (text.size() > m_start && text.endsWith(u' '))
        text.chop(1);
    else
        text += u"Keine!"_s;
    return text;
}

} // namespace heft
