#pragma once
// One entry grid without its window: the cell texts plus the little state a
// grid control keeps (current row, top row, column widths, visibility,
// tooltip). The list routines work on this, and the view follows its
// signals, so the routines run in tests without any window.
//
// Rows are counted as the grid counts them: row 0 is the header, entries
// start at row 1, Rows() is entries + 1.

#include "entrygridmodel.h"

#include <QFont>
#include <QObject>

namespace heft {

class EntryGrid : public QObject {
    Q_OBJECT

public:
    explicit EntryGrid(bool filterGrid, QObject* parent = nullptr);

    EntryGridModel& Model() { return m_model; }
    const EntryGridModel& Model() const { return m_model; }
    bool IsFilterGrid() const { return m_filterGrid; }

    int Rows() const { return m_model.rowCount() + 1; }
    int Row() const { return m_row; }
    void SetRow(int row);
    int TopRow() const { return m_topRow; }
    void SetTopRow(int row);
    // Whole rows the view can show at once; the view keeps this up to date.
    int VisibleRows() const { return m_visibleRows; }
    void SetVisibleRows(int rows) { m_visibleRows = rows; }
    // Width in pixels that the columns share beside a vertical scroll bar.
    int ClientWidth() const { return m_clientWidth; }
    void SetClientWidth(int pixels) { m_clientWidth = pixels; }

    // Row 0 gives the header texts.
    QString TextMatrix(int row, int column) const;
    void SetTextMatrix(int row, int column, const QString& text);

    int ColWidth(int column) const { return m_colWidths[static_cast<size_t>(column)]; }
    void SetColWidth(int column, int twips);
    int ColPixelWidth(int column) const;

    // The font the cells are shown in, for fitting columns to their text.
    QFont Font() const { return m_font; }
    void SetFont(const QFont& font) { m_font = font; }

    bool Visible() const { return m_visible; }
    void SetVisible(bool visible);
    QString ToolTip() const { return m_toolTip; }
    void SetToolTip(const QString& text);

    // A filter list can be left with one empty row; clicks and keys on it
    // must do nothing. The full list always holds entries.
    bool CurrentRowHoldsEntry() const;

Q_SIGNALS:
    void RowChanged(int row);
    void TopRowChanged(int row);
    void ColWidthChanged(int column);
    void VisibleChanged(bool visible);
    void ToolTipChanged(const QString& text);

private:
    EntryGridModel m_model;
    bool m_filterGrid;
    int m_row = 1;
    int m_topRow = 1;
    int m_visibleRows = 20;
    int m_clientWidth = 0;
    std::array<int, EntryColumnCount> m_colWidths{};
    QFont m_font;
    bool m_visible = false;
    QString m_toolTip;
};

} // namespace heft
