// The text list: one line per entry in a fixed-width font under a bold head
// line, a rule and a footer with the range or the filter and the page count
// at the end of every page.

#include "pagedrawing.h"
#include "printpage.h"

#include "core/session.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QString HeadLine = u"  Nr Autor                     Titel                                             AL    Zyklus GL   "
                         "Bemerkung"_s;
const QString Face = u"Courier New"_s;
constexpr int FontHeight = 80;
// The list keeps a wider left margin than the other outputs, for punching.
constexpr int MinimumLeft = 140;
// Footer texts are cut to this many characters.
constexpr int FooterLength = 145;

const QString AutorMask = u'!' + QString(26, u'@');
const QString TitelMask = u'!' + QString(51, u'@');

// One body line of a list entry; auflage is the printing's text (empty or
// not a number when there is none).
QString ListLine(const QString& nr, const QString& autor, const QString& titel, const QString& auflage,
                 const QString& zyklus, bool gelesen, const QString& bemerkung)
{
    const QString edition = IsNumeric(auflage) && Val(auflage) > 0 ? FormatMask(auflage, u"@@"_s) + u' ' : u" - "_s;
    return FormatMask(nr, u"@@@@"_s) + u' ' + FormatMask(autor, AutorMask) + FormatMask(titel, TitelMask) + edition +
           FormatMask(zyklus, u"@@@@@@@@@"_s) + u' ' + (gelesen ? u"Ja   "_s : u"Nein "_s) + bemerkung;
}

QString LineFromRecord(const Query& query)
{
    const QString auflage = query.IsNull(3) ? QString() : QString::number(query.Int(3));
    const QString zyklus = query.IsNull(4) ? u"? ? ?"_s : query.Text(4);
    return ListLine(query.Text(0), query.Text(1), query.Text(2), auflage, zyklus, query.Int(5) != 0,
                    query.IsNull(6) ? QString() : query.Text(6));
}

QString LineFromCells(const ListCells& cells)
{
    // The grid shows an unknown printing as an empty cell.
    return ListLine(cells[0], cells[1], cells[2], cells[3], cells[4], cells[5] == QString(QChar(0x00FC)), cells[6]);
}

class ListPages {
public:
    ListPages(PrintContext& context, int from, int to) : m_context(context), m_page(context.page), m_from(from), m_to(to)
    {
        PageFrame& frame = m_context.frame;
        frame.left = MaxOf(frame.left, MinimumLeft);
    }

    void Draw()
    {
        const PageFrame& frame = m_context.frame;
        const bool filterList = m_context.request.kind == PrintKind::FilterList;
        m_page.SetFont(Face, FontHeight);
        m_page.SetTextColor(Qt::black);
        m_page.SetAlignment(TextAlign::Left);
        m_lineHeight = m_page.MeasureText(u"Test Text String"_s).height();
        const int linesPerPage = MaxOf(1, (frame.bottom - frame.top - 2 * m_lineHeight) / m_lineHeight);
        const int count = filterList ? m_to : CountEntries();
        m_pages = static_cast<int>(IntDiv(count, linesPerPage) + (Mod(count, linesPerPage) != 0 ? 1 : 0));
        DrawHead();
        if (m_context.feedback.startProgress)
            m_context.feedback.startProgress(m_to);
        m_context.Status(PageStatus());

        Query records;
        if (!filterList) {
            records = m_context.session.CollectionDb->Select(
                u"SELECT * FROM HEFTLIST WHERE Nr>=%1 AND Nr<=%2 ORDER BY Nr;"_s.arg(m_from).arg(m_to));
            if (!records.Next()) {
                TellEmptyRange();
                return;
            }
        }
        bool recordsLeft = true;
        for (int i = m_from; i <= m_to; ++i) {
            bool drawn = false;
            if (filterList) {
                DrawBodyLine(LineFromCells(m_context.request.filterRows[static_cast<size_t>(i - 1)]));
                drawn = true;
            } else if (recordsLeft && records.Int(0) == i) {
                DrawBodyLine(LineFromRecord(records));
                recordsLeft = records.Next();
                drawn = true;
            }
            if (drawn && m_lineCount == linesPerPage)
                TurnPage();
            if (Mod(i, 10) == 0) {
                m_context.Progress(i);
                m_context.LetEventsRun();
            }
            if (m_page.Aborted())
                return;
        }
        if (m_lineCount > 0)
            DrawFooter();
    }

private:
    int CountEntries() const
    {
        return m_context.session.CollectionDb
            ->SelectValue(u"SELECT COUNT(*) FROM HEFTLIST WHERE Nr>=%1 AND Nr<=%2;"_s.arg(m_from).arg(m_to))
            .toInt();
    }

    QString PageStatus() const
    {
        return u"Erzeuge Druckerdaten für Seite %1/%2"_s.arg(m_page.PageNumber()).arg(m_pages);
    }

    void TellEmptyRange()
    {
        const Configuration& config = m_context.session.Config;
        m_context.session.prompter->Tell(
            u"Keine Einträge gefunden"_s,
            u"Im Nummernbereich %1 bis %2 sind\r\nkeine %3 Einträge vorhanden."_s.arg(m_from).arg(m_to).arg(config.ListKind),
            MessageIcon::Information);
        m_page.Abort();
    }

    void DrawHead()
    {
        const PageFrame& frame = m_context.frame;
        m_page.SetFont(Face, FontHeight, 0, true);
        const QRect area(QPoint(frame.left, frame.top), QPoint(frame.right, frame.bottom));
        m_page.TextInBox(area, HeadLine, area);
        m_page.SetFont(Face, FontHeight);
    }

    void DrawBodyLine(const QString& line)
    {
        const PageFrame& frame = m_context.frame;
        ++m_lineCount;
        const QRect box(QPoint(frame.left, frame.top + 10 + m_lineCount * m_lineHeight), QPoint(frame.right, frame.bottom));
        m_page.TextInBox(box, line, box);
    }

    void TurnPage()
    {
        DrawFooter();
        m_lineCount = 0;
        if (m_page.PageNumber() >= m_pages)
            return;
        m_page.NewPage();
        m_page.SetAlignment(TextAlign::Left);
        DrawHead();
        m_context.Status(PageStatus());
    }

    void DrawFooter()
    {
        const PageFrame& frame = m_context.frame;
        const Configuration& config = m_context.session.Config;
        const int ruleY = frame.top + 16 + (m_lineCount + 1) * m_lineHeight;
        m_page.SetPen(3);
        m_page.Line(frame.left, ruleY, frame.right, ruleY);
        m_page.SetFont(Face, FontHeight);

        const QString range = m_context.request.kind == PrintKind::FilterList
                                  ? u"gefiltert nach: "_s + StripLineBreaks(m_context.request.filterText)
                                  : u"Nummer %1-%2"_s.arg(m_from).arg(m_to);
        const QString leftText = Left(config.SeriesName + u' ' + config.ListKind + u' ' + range, FooterLength);
        const QString pageText = u"Seite %1 von %2"_s.arg(m_page.PageNumber()).arg(m_pages);
        const QRect box(QPoint(frame.left, ruleY + 4), QPoint(frame.right, frame.bottom + 20));
        // A long filter sentence is cut before the page count rather than
        // running into it.
        const int pageTextWidth = m_page.MeasureText(u"  "_s + pageText).width();
        m_page.SetAlignment(TextAlign::Left);
        m_page.TextInBox(box, leftText, box.adjusted(0, 0, -pageTextWidth, 0));
        m_page.SetAlignment(TextAlign::Right);
        m_page.TextInBox(box, pageText, box);
        m_page.SetAlignment(TextAlign::Left);
    }

    PrintContext& m_context;
    PrintPage& m_page;
    int m_from;
    int m_to;
    int m_lineHeight = 1;
    int m_pages = 0;
    int m_lineCount = 0;
};

} // namespace

void DrawListPage(PrintContext& context, int from, int to)
{
    ListPages(context, from, to).Draw();
}

} // namespace heft
