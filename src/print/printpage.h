#pragma once
// The page object the list and matrix pages are drawn through: a small set of
// drawing operations on one QPainter, in the page's own logical units, so
// that preview, printer and PDF get the same pages.
//
// Lengths are tenths of a millimetre, counted from the paper's top left
// corner: A4 portrait is 2100 by 2970. Font heights are tenths of a point
// (80 is an 8 pt list font), the scale print fonts are thought in; the page
// turns them into lengths itself.

#include <QColor>
#include <QFont>
#include <QImage>
#include <QMarginsF>
#include <QPen>
#include <QRect>
#include <QSizeF>
#include <QString>

class QPainter;
class QPagedPaintDevice;

namespace heft {

// Where a text stands against the point it is drawn at (the top edge of the
// text is always at the point's y).
enum class TextAlign { Left, Right, Centre };

class PrintPage {
public:
    // painter is open on device (which may be nullptr for a recording that
    // has no pages to turn). paperMm is the paper in its orientation;
    // printerMarginsMm is what the printer cannot reach.
    PrintPage(QPainter& painter, QPagedPaintDevice* device, QSizeF paperMm, QMarginsF printerMarginsMm = {});
    virtual ~PrintPage() = default;
    PrintPage(const PrintPage&) = delete;
    PrintPage& operator=(const PrintPage&) = delete;

    int PageWidth() const { return m_width; }
    int PageHeight() const { return m_height; }
    // The area the printer can reach, as left, top, right and bottom edges.
    QRect PrintableArea() const { return m_printable; }
    int PageNumber() const { return m_pageNumber; }
    // Begins the next page; nothing once the document is aborted.
    virtual void NewPage();
    // Stops the document: no further page is begun, and whoever shows or
    // sends the pages must drop them.
    void Abort() { m_aborted = true; }
    bool Aborted() const { return m_aborted; }

    // face as the pages name it ("Courier New", "Garamond"); angle in tenths
    // of a degree, counter-clockwise.
    void SetFont(const QString& face, int height, int angle = 0, bool bold = false);
    // Width and height of the text in the current font.
    QSize MeasureText(const QString& text) const;
    // The ink of the text, relative to the point it is drawn at with left
    // alignment: y counts from the text's top edge.
    QRect TextBounds(const QString& text) const;
    void SetPen(int width);
    void SetTextColor(const QColor& color) { m_textColor = color; }
    void SetAlignment(TextAlign align) { m_align = align; }

    virtual void Line(int x1, int y1, int x2, int y2);
    // A filled rectangle is filled with the ink colour, an empty one is only
    // outlined.
    virtual void Rectangle(int x1, int y1, int x2, int y2, bool filled);
    // The small filled tag that carries a mark in a corner of a cell.
    virtual void MarkerShape(int x1, int y1, int x2, int y2);
    // Text whose top edge is at y, placed against x by the alignment.
    virtual void TextAt(int x, int y, const QString& text);
    // Text at the top of the box, placed by the alignment within its left
    // and right edges, cut at the clip rectangle.
    virtual void TextInBox(const QRect& box, const QString& text, const QRect& clip);
    // The picture fitted into the box, keeping its proportions, centred.
    virtual void Bitmap(const QImage& image, const QRect& box);

protected:
    QColor TextColor() const { return m_textColor; }

private:
    QPainter& m_painter;
    QPagedPaintDevice* m_device;
    int m_width = 0;
    int m_height = 0;
    QRect m_printable;
    int m_pageNumber = 1;
    bool m_aborted = false;
    QFont m_font;
    int m_angle = 0;
    QPen m_pen;
    QColor m_textColor = Qt::black;
    TextAlign m_align = TextAlign::Left;
};

// The paper an A4 document has in the orientation, in millimetres.
QSizeF A4PaperMm(bool landscape);

} // namespace heft
