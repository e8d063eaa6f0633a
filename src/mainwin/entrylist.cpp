#include "entrylist.h"

#include "entryrows.h"
#include "twips.h"

#include "core/session.h"
#include "core/textfuncs.h"

#include <QFontMetricsF>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Widths of columns 0 to 5 in twips; column 6 takes what is left.
constexpr std::array<int, ColBemerkung> FixedColumnWidths{520, 1800, 3300, 520, 900, 520};
// Column 6 never starts narrower than this, even in a narrow window.
constexpr int MinRemarkWidth = 1800;
// The widths above were laid out for the classic 8-point dialog font, whose
// digits are 75 twips wide (5 pixels at 96 DPI).
constexpr double ClassicDigitWidth = 75.0;

// A wider desktop font widens the fixed columns in proportion, so that the
// numbers and the headers still fit.
double WidthScale(const QFont& font)
{
    const double digitWidth = QFontMetricsF(font).horizontalAdvance(u'0') * TwipsPerPixel();
    return std::max(1.0, digitWidth / ClassicDigitWidth);
}

} // namespace

EntryList::EntryList(QObject* parent) : QObject(parent)
{
    Heftliste.setParent(this);
    Filter.setParent(this);
}

int EntryList::PreferredGridWidth() const
{
    const double scale = WidthScale(ActiveGrid->Font());
    int width = 2 * MinRemarkWidth;
    for (int col = 0; col < ColBemerkung; ++col)
        width += static_cast<int>(FixedColumnWidths[static_cast<size_t>(col)] * scale);
    return width;
}

void EntryList::SetupGridColumns()
{
    EntryGrid& grid = *ActiveGrid;
    const double scale = WidthScale(grid.Font());
    int fixedSum = 0;
    for (int col = 0; col < ColBemerkung; ++col) {
        const int width = static_cast<int>(FixedColumnWidths[static_cast<size_t>(col)] * scale);
        grid.SetColWidth(col, width);
        fixedSum += width;
        grid.Model().SetHeaderMark(col, false, SortPicture::None);
    }
    grid.SetColWidth(ColBemerkung, std::max(MinRemarkWidth, PixelsToTwips(grid.ClientWidth()) - fixedSum));
    grid.Model().SetHeaderMark(ColBemerkung, false, SortPicture::None);
    grid.Model().SetHeaderMark(ColNr, true, SortPicture::Up);
    SortColumn = ColNr;
    SortDescending = false;
}

void EntryList::FillGrid(Session& session, qsizetype expectedRows)
{
    std::vector<EntryCells> rows = ReadEntryRows(session.SharedRecordset, expectedRows);
    session.SharedRecordset.Close();
    // A grid always keeps one data row, even for an empty result.
    if (rows.empty())
        rows.emplace_back();
    EntryGrid& grid = *ActiveGrid;
    grid.Model().Reset(std::move(rows));
    grid.SetRow(1);
    grid.SetTopRow(1);
    UpdateSelectionPanel();
}

void EntryList::ShowFilterGrid(bool show)
{
    Filter.SetVisible(show);
    Heftliste.SetVisible(!show);
}

void EntryList::UpdateSelectionPanel()
{
    const EntryGrid& grid = *ActiveGrid;
    Q_EMIT StatusPanelChanged(3, u"%1/%2"_s.arg(grid.Row()).arg(grid.Rows() - 1));
    const QString nr = grid.TextMatrix(grid.Row(), ColNr);
    if (IsNumeric(nr))
        SelectedNr = static_cast<int>(Val(nr));
}

} // namespace heft
