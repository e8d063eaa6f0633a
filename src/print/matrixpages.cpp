// The check sheet: a head band with the list's name in the side strips and
// the hundred in the middle, and below it ten by ten cells, one per number.
// A number the collection holds with a known printing is crossed out and
// can carry small tags for the printing and the state in its top corners.

#include "pagedrawing.h"
#include "printpage.h"

#include "core/session.h"
#include "core/textfuncs.h"

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr int Gap = 10;         // inner gap, also the width of the frame lines
constexpr int HalfGap = 5;
constexpr int HeadHeight = 300;  // height of the head band
constexpr int CentreWidth = 1160; // width of the band with the hundred
constexpr int CellTop = 20;      // from the head band to the cell contents
constexpr int TagSize = 36;      // side of the tags in the cell corners

const QString Face = u"Courier New"_s;
constexpr int StripFontHeight = 100;
constexpr int HundredFontHeight = 780;
constexpr int CellFontHeight = 280;
constexpr int TagFontHeight = 110;
// The state, attribute 3 of the catalogue.
constexpr int ZustandENum = 3;

class MatrixPage {
public:
    MatrixPage(PrintContext& context, int from, int to)
        : m_context(context), m_page(context.page), m_frame(context.frame), m_options(context.request.matrix),
          m_from(from), m_to(to), m_cellWidth(static_cast<float>(m_frame.right - m_frame.left - Gap) / 10.0F),
          m_rowHeight((m_frame.bottom - m_frame.top - HeadHeight - CellTop) / 10),
          m_centreLeft((m_frame.right - m_frame.left - CentreWidth) / 2 + m_frame.left)
    {
    }

    void Draw()
    {
        DrawHead();
        DrawGrid();
        DrawCells();
    }

private:
    int CellX(int column) const { return static_cast<int>(column * m_cellWidth); }

    void DrawHead()
    {
        const int left = m_frame.left;
        const int right = m_frame.right;
        const int top = m_frame.top;
        const int bandBottom = top + Gap + HeadHeight + HalfGap;
        m_page.SetAlignment(TextAlign::Centre);
        m_page.SetFont(Face, StripFontHeight, 900);
        const int h = m_page.MeasureText(u"1"_s).height();
        m_page.SetPen(Gap);
        const int leftStrip = left + Gap + 2 * h;
        const int rightStrip = right - Gap - 2 * h;
        if (!m_options.tonerSaving) {
            const QImage& logo = m_context.request.logo;
            m_page.Bitmap(logo, QRect(QPoint(leftStrip + HalfGap - 1, top + Gap - 1),
                                      QPoint(m_centreLeft + 1, top + Gap + HeadHeight + 1)));
            m_page.Bitmap(logo, QRect(QPoint(m_centreLeft + CentreWidth, top + Gap - 1),
                                      QPoint(rightStrip + 2, top + Gap + HeadHeight + 1)));
            m_page.Rectangle(left + HalfGap, top + HalfGap, leftStrip, bandBottom, true);
            m_page.Rectangle(rightStrip - 1, top + HalfGap, right - HalfGap, bandBottom, true);
            m_page.SetTextColor(Qt::yellow);
        }
        m_page.Line(leftStrip, top + HalfGap, leftStrip, bandBottom);
        m_page.Line(rightStrip, top + HalfGap, rightStrip, bandBottom);

        // Both strips read from the outside in: the list kind at the paper's
        // edge, the series next to it.
        const Configuration& config = m_context.session.Config;
        const int middleY = top + HalfGap + (Gap + HeadHeight) / 2;
        const int leftMiddle = (left + HalfGap + leftStrip) / 2;
        m_page.TextAt(leftMiddle - h, middleY, config.ListKind);
        m_page.TextAt(leftMiddle, middleY, config.SeriesName);
        m_page.SetFont(Face, StripFontHeight, 2700);
        const int rightMiddle = (rightStrip + right - HalfGap) / 2;
        m_page.TextAt(rightMiddle + h, middleY, config.ListKind);
        m_page.TextAt(rightMiddle, middleY, config.SeriesName);

        m_page.Rectangle(left + HalfGap, top + HalfGap, right - HalfGap, m_frame.bottom - HalfGap, false);
        m_page.Line(left + HalfGap, bandBottom, right - HalfGap, bandBottom);
        if (!m_options.tonerSaving) {
            m_page.Rectangle(m_centreLeft + HalfGap, top + HalfGap, m_centreLeft + CentreWidth - HalfGap, bandBottom,
                             true);
            m_page.SetTextColor(Qt::white);
        }
        const QString hundred = u"%1-%2"_s.arg(m_from == 0 ? 1 : m_from).arg(m_to);
        m_page.SetFont(u"Garamond"_s,
                       FittingFont(u"Garamond"_s, HundredFontHeight, hundred, CentreWidth - 6 * Gap));
        // The figures stand in the middle of the band, whatever the face's
        // ascent and descent.
        const QRect figures = m_page.TextBounds(hundred);
        m_page.TextAt(m_frame.centreX, top + HalfGap + (Gap + HeadHeight - figures.height()) / 2 - figures.top(),
                      hundred);
        m_page.SetTextColor(Qt::black);
    }

    void DrawGrid()
    {
        const int gridTop = m_frame.top + HeadHeight + Gap + HalfGap;
        for (int column = 1; column <= 9; ++column) {
            const int x = m_frame.left + HalfGap + CellX(column);
            m_page.Line(x, gridTop, x, m_frame.bottom - HalfGap);
        }
        for (int row = 1; row <= 9; ++row) {
            const int y = gridTop + row * m_rowHeight;
            m_page.Line(m_frame.left + HalfGap, y, m_frame.right - HalfGap, y);
        }
    }

    // The font height at which the text takes at most room, but never more
    // than the usual height: on narrow paper four-digit numbers get smaller.
    int FittingFont(const QString& face, int height, const QString& text, int room)
    {
        m_page.SetFont(face, height);
        const int width = m_page.MeasureText(text).width();
        return width <= room ? height : height * room / width;
    }

    void DrawCells()
    {
        // A number keeps a quarter of its cell free around it.
        const int cellFont = FittingFont(Face, CellFontHeight, QString::number(MinOf(m_to, m_context.request.highestNr)),
                                         static_cast<int>(m_cellWidth * 3 / 4));
        m_page.SetFont(Face, cellFont);
        m_page.SetPen(8);
        const int h = m_page.MeasureText(u"1"_s).height();
        Query records = m_context.session.CollectionDb->Select(
            u"SELECT Nr, Auflage FROM HEFTLIST WHERE Nr>=%1 AND Nr<=%2 ORDER BY Nr;"_s.arg(m_from).arg(m_to));
        bool recordsLeft = records.Next();
        for (int row = 0; row < 10; ++row) {
            const int rowTop = CellTop + m_frame.top + HeadHeight + row * m_rowHeight;
            const int textTop = rowTop + (m_rowHeight - h) / 2 + 2;
            for (int column = 0; column < 10; ++column) {
                if (m_from == 0 && row == 0 && column == 0)
                    CrossCell(row, column); // there is no number 0
                const int number = m_from + 10 * row + column;
                if (number > m_context.request.highestNr)
                    continue;
                int edition = 0;
                if (recordsLeft && records.Int(0) == number) {
                    edition = static_cast<int>(MaxOf<qint64>(records.Int(1), 0));
                    recordsLeft = records.Next();
                }
                const int cellLeft = m_frame.left + Gap + CellX(column);
                m_page.TextAt(cellLeft + static_cast<int>(m_cellWidth) / 2 - 2, textTop, QString::number(number));
                if (edition > 0) {
                    CrossCell(row, column);
                    if (m_options.auflage)
                        DrawEditionTag(cellLeft, rowTop, edition, cellFont);
                    if (m_options.zustand)
                        DrawStateTag(cellLeft, rowTop, number, cellFont);
                }
            }
            m_context.progress += 10;
            m_context.Progress(m_context.progress);
        }
    }

    void CrossCell(int row, int column)
    {
        const int x1 = m_frame.left + HalfGap + CellX(column);
        const int x2 = m_frame.left + HalfGap + CellX(column + 1);
        const int y1 = m_frame.top + Gap + HeadHeight + HalfGap + row * m_rowHeight;
        const int y2 = y1 + m_rowHeight;
        m_page.Line(x1, y1, x2, y2);
        m_page.Line(x1, y2, x2, y1);
    }

    // A tag in a cell corner from x1 to x2, with its character in the middle.
    void DrawTag(int x1, int x2, int rowTop, const QString& text, const QColor& color, int cellFont)
    {
        m_page.MarkerShape(x1, rowTop - 1, x2, rowTop + TagSize);
        m_page.SetFont(Face, TagFontHeight);
        m_page.SetTextColor(color);
        const QSize size = m_page.MeasureText(text);
        m_page.TextAt((x1 + x2) / 2, rowTop - 1 + (TagSize + 1 - size.height()) / 2, text);
        m_page.SetFont(Face, cellFont);
        m_page.SetTextColor(Qt::black);
    }

    void DrawEditionTag(int cellLeft, int rowTop, int edition, int cellFont)
    {
        DrawTag(cellLeft, cellLeft + TagSize, rowTop, QString::number(edition), Qt::white, cellFont);
    }

    void DrawStateTag(int cellLeft, int rowTop, int number, int cellFont)
    {
        const QString state = m_context.session.CollectionDb
                                  ->SelectValue(u"SELECT StatusWert FROM Status WHERE ENum=%1 AND Nr=%2;"_s
                                                    .arg(ZustandENum)
                                                    .arg(number))
                                  .toString()
                                  .left(1);
        if (state.isEmpty() && !m_options.zustandImmer)
            return;
        const int tagRight = cellLeft + static_cast<int>(m_cellWidth) - Gap;
        DrawTag(tagRight - TagSize, tagRight + HalfGap, rowTop, state.isEmpty() ? u"?"_s : state,
                m_options.tonerSaving ? QColor(Qt::white) : QColor(Qt::yellow), cellFont);
    }

    PrintContext& m_context;
    PrintPage& m_page;
    const PageFrame& m_frame;
    const MatrixOptions& m_options;
    int m_from;
    int m_to;
    float m_cellWidth;
    int m_rowHeight;
    int m_centreLeft;
};

} // namespace

void DrawMatrixPage(PrintContext& context, int from, int to)
{
    MatrixPage(context, from, to).Draw();
}

} // namespace heft
