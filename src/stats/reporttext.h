#pragma once
// The pieces every statistics report is made of: counts with their share of
// a total, and lines whose labels are padded so that the colon behind each
// label stands in one column, however long the list name is.

#include <QList>
#include <QString>

namespace heft {

inline constexpr QStringView LineEnd = u"\r\n";

// A percentage with one decimal, "12.5%".
QString PercentText(double fraction);
// A number right-aligned in `places` characters.
QString RightAligned(qint64 number, int places);
QString RightAligned(const QString& text, int places);
// A text left-aligned in `places` characters, cut when longer.
QString LeftAligned(const QString& text, int places);
// An amount with two decimals, right-aligned in ten places.
QString AmountText(double amount);

// FormatCount and the shares of one list.
class ShareCounter {
public:
    // Takes a count and its total: CountText ("-" for 0), ShareText ("0.0%"
    // in six places, " -  - " for 0) and Share; adds Share to the list's sum.
    void FormatCount(qint64 count, qint64 total);
    // On the last row of a list whose shares don't add up to one, the row's
    // share becomes what is left, so that the list shows 100 % in all.
    void LastShareFix();
    void StartList() { m_shareSum = 0; }
    // ":" + count + " [" + share + "]", the end of most report lines.
    QString Tail() const;

    QString countText;
    QString shareText;
    double share = 0;

private:
    float m_shareSum = 0; // summed in single precision, as the shares are added up
};

class ReportLines {
public:
    // A line with a label; `rest` starts with the colon. Padding goes between
    // label and labelTail, so that a tail such as " (KB)" stays at the colon.
    void Add(const QString& label, const QString& rest, const QString& labelTail = {});
    // A line outside the label column (lists, blank lines).
    void AddPlain(const QString& text);
    bool IsEmpty() const { return m_lines.isEmpty(); }
    // The lines joined by CR LF, with a CR LF behind the last one if asked.
    QString Text(bool endWithLineEnd) const;

private:
    struct Line {
        QString label;
        QString labelTail;
        QString rest;
        bool aligned = false;
    };
    QList<Line> m_lines;
};

// A list of numbers as the Report writes it: pieces appended to a line, and
// a line longer than 57 characters pushed into the text without its last
// blank. The finished text loses a trailing blank, or says "Keine!".
class WrappedList {
public:
    explicit WrappedList(QString start = {}) : m_text(std::move(start)), m_start(m_text.size()) {}
    void Append(const QString& piece);
    qsizetype TextLength() const { return m_text.size(); }
    QString Finish() const;

private:
    QString m_text;
    QString m_line;
    qsizetype m_start;
};

} // namespace heft
