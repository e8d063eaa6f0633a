#include "printpage.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Tenths of a millimetre per inch.
constexpr double UnitsPerInch = 254.0;
// Tenths of a millimetre per tenth of a point (a point is 1/72 inch).
constexpr double UnitsPerDecipoint = UnitsPerInch / 720.0;
// Ink for filled shapes: the bands and tags of the check sheet.
const QColor Ink(Qt::black);

// The faces the pages ask for are served by free fonts. Garamond only ever
// sets the hundreds in the head of the check sheet; EB Garamond draws its
// figures in old style (1100 reads like "IIOO") and Qt cannot switch on its
// lining figures, so a serif with lining figures stands in.
QString FontFamily(const QString& face)
{
    if (face == u"Courier New")
        return u"Liberation Mono"_s;
    if (face == u"Garamond")
        return u"Liberation Serif"_s;
    return face;
}

int ToUnits(double millimetres) { return static_cast<int>(std::lround(millimetres * 10.0)); }

} // namespace

QSizeF A4PaperMm(bool landscape)
{
    const QSizeF portrait(210.0, 297.0);
    return landscape ? portrait.transposed() : portrait;
}

PrintPage::PrintPage(QPainter& painter, QPagedPaintDevice* device, QSizeF paperMm, QMarginsF printerMarginsMm)
    : m_painter(painter), m_device(device), m_width(ToUnits(paperMm.width())), m_height(ToUnits(paperMm.height())),
      m_printable(QPoint(ToUnits(printerMarginsMm.left()), ToUnits(printerMarginsMm.top())),
                  QPoint(m_width - ToUnits(printerMarginsMm.right()), m_height - ToUnits(printerMarginsMm.bottom())))
{
    const QPaintDevice* target = painter.device();
    painter.setWorldTransform(QTransform::fromScale(target->logicalDpiX() / UnitsPerInch,
                                                    target->logicalDpiY() / UnitsPerInch));
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    SetFont(u"Courier New"_s, 80);
    SetPen(1);
}

void PrintPage::NewPage()
{
    if (m_aborted)
        return;
    if (m_device != nullptr)
        m_device->newPage();
    ++m_pageNumber;
}

void PrintPage::SetFont(const QString& face, int height, int angle, bool bold)
{
    m_font = QFont(FontFamily(face));
    m_font.setPixelSize(std::max(1, static_cast<int>(std::lround(height * UnitsPerDecipoint))));
    m_font.setBold(bold);
    // Outlines without hinting, so that the widths measured here are the
    // widths printed at any resolution.
    m_font.setHintingPreference(QFont::PreferNoHinting);
    m_font.setStyleStrategy(QFont::ForceOutline);
    m_angle = angle;
    m_painter.setFont(m_font);
}

QSize PrintPage::MeasureText(const QString& text) const
{
    const QFontMetricsF metrics(m_font);
    return {static_cast<int>(std::ceil(metrics.horizontalAdvance(text))), static_cast<int>(std::ceil(metrics.height()))};
}

QRect PrintPage::TextBounds(const QString& text) const
{
    const QFontMetricsF metrics(m_font);
    return metrics.tightBoundingRect(text).translated(0.0, metrics.ascent()).toAlignedRect();
}

void PrintPage::SetPen(int width)
{
    m_pen = QPen(Ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    m_painter.setPen(m_pen);
}

void PrintPage::Line(int x1, int y1, int x2, int y2)
{
    m_painter.setPen(m_pen);
    m_painter.drawLine(x1, y1, x2, y2);
}

void PrintPage::Rectangle(int x1, int y1, int x2, int y2, bool filled)
{
    m_painter.setPen(m_pen);
    m_painter.setBrush(filled ? QBrush(Ink) : QBrush(Qt::NoBrush));
    m_painter.drawRect(QRect(QPoint(x1, y1), QPoint(x2, y2)));
    m_painter.setBrush(Qt::NoBrush);
}

void PrintPage::MarkerShape(int x1, int y1, int x2, int y2)
{
    const QRectF box(QPointF(x1, y1), QPointF(x2, y2));
    const double radius = std::min(box.width(), box.height()) / 4.0;
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(Ink);
    m_painter.drawRoundedRect(box, radius, radius);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(m_pen);
}

void PrintPage::TextAt(int x, int y, const QString& text)
{
    const QFontMetricsF metrics(m_font);
    const double width = metrics.horizontalAdvance(text);
    const double offset = m_align == TextAlign::Left ? 0.0 : m_align == TextAlign::Right ? -width : -width / 2.0;
    m_painter.save();
    m_painter.translate(x, y);
    m_painter.rotate(-m_angle / 10.0);
    m_painter.setPen(m_textColor);
    m_painter.drawText(QPointF(offset, metrics.ascent()), text);
    m_painter.restore();
}

void PrintPage::TextInBox(const QRect& box, const QString& text, const QRect& clip)
{
    const QFontMetricsF metrics(m_font);
    const double width = metrics.horizontalAdvance(text);
    const double x = m_align == TextAlign::Left    ? box.left()
                     : m_align == TextAlign::Right ? box.right() - width
                                                   : box.center().x() - width / 2.0;
    m_painter.save();
    m_painter.setClipRect(clip);
    m_painter.setPen(m_textColor);
    m_painter.drawText(QPointF(x, box.top() + metrics.ascent()), text);
    m_painter.restore();
}

void PrintPage::Bitmap(const QImage& image, const QRect& box)
{
    if (image.isNull() || box.isEmpty())
        return;
    QSizeF fitted = QSizeF(image.size()).scaled(QSizeF(box.size()), Qt::KeepAspectRatio);
    const QRectF target(box.center().x() - fitted.width() / 2.0, box.center().y() - fitted.height() / 2.0,
                        fitted.width(), fitted.height());
    m_painter.drawImage(target, image);
}

} // namespace heft
