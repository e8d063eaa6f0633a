#include "entrygrid.h"

#include "twips.h"

#include "core/textfuncs.h"

namespace heft {

EntryGrid::EntryGrid(bool filterGrid, QObject* parent) : QObject(parent), m_filterGrid(filterGrid) {}

void EntryGrid::SetRow(int row)
{
    if (row == m_row)
        return;
    m_row = row;
    Q_EMIT RowChanged(row);
}

void EntryGrid::SetTopRow(int row)
{
    if (row == m_topRow)
        return;
    m_topRow = row;
    Q_EMIT TopRowChanged(row);
}

QString EntryGrid::TextMatrix(int row, int column) const
{
    if (row == 0)
        return EntryGridModel::HeaderText(column);
    if (row < 1 || row >= Rows())
        return {};
    return m_model.Text(row - 1, column);
}

void EntryGrid::SetTextMatrix(int row, int column, const QString& text)
{
    m_model.SetText(row - 1, column, text);
}

void EntryGrid::SetColWidth(int column, int twips)
{
    if (m_colWidths[static_cast<size_t>(column)] == twips)
        return;
    m_colWidths[static_cast<size_t>(column)] = twips;
    Q_EMIT ColWidthChanged(column);
}

int EntryGrid::ColPixelWidth(int column) const
{
    return TwipsToPixels(ColWidth(column));
}

void EntryGrid::SetVisible(bool visible)
{
    if (visible == m_visible)
        return;
    m_visible = visible;
    Q_EMIT VisibleChanged(visible);
}

void EntryGrid::SetToolTip(const QString& text)
{
    if (text == m_toolTip)
        return;
    m_toolTip = text;
    Q_EMIT ToolTipChanged(text);
}

bool EntryGrid::CurrentRowHoldsEntry() const
{
    return !m_filterGrid || IsNumeric(TextMatrix(m_row, ColNr));
}

} // namespace heft
