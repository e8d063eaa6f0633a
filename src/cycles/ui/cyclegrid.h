#pragma once
// fg_zyklus: one line per cycle under a fixed header, with the running
// number in a fixed first column. Its cells are what the editor reads and
// what the cycle file is written from; table row i is cycle number i + 1.

#include "cycles/cyclelist.h"

#include <QTableWidget>

namespace heft {

class CycleGrid : public QTableWidget {
    Q_OBJECT

public:
    explicit CycleGrid(QWidget* parent = nullptr);

    // Rows for this many cycles, with the headers, widths and alignments.
    void Format(int cycles);
    // The cells of one line; nr goes into the fixed first column.
    void SetCycle(int index, int nr, const CycleRow& row);
    // A new last line numbered after the one before; returns its index.
    int AppendCycle(const CycleRow& row);
    int CycleCount() const { return rowCount(); }
    CycleRow Cycle(int index) const;
    QList<CycleRow> Cycles() const;
    // The running number in the first column.
    int NrOf(int index) const;
    // Makes the line current and top line, with its cycle columns selected.
    void SelectCycle(int index);
    // Width of the columns and the vertical scroll bar, in pixels.
    int ContentWidth() const;

private:
    void SetCell(int index, int column, const QString& text);
};

} // namespace heft
