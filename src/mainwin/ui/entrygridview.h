#pragma once
// The window of one entry grid. It shows an EntryGrid and follows its
// current row, top row and column widths; what the user does goes to the
// list routines, and the commands it cannot run itself (edit, pop-up menu)
// leave as signals for the main window.

#include <QTableView>

namespace heft {

class EntryGrid;
class EntryList;

class EntryGridView : public QTableView {
    Q_OBJECT

public:
    EntryGridView(EntryList& list, EntryGrid& grid, QWidget* parent = nullptr);

Q_SIGNALS:
    // Double-click or Enter on an entry row.
    void EditRequested();
    // Right mouse button on an entry row, which has become the current row.
    void PopupRequested(const QPoint& globalPos);
    void FocusChanged(bool focused);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void ConnectGrid();
    void ConnectView();
    void ShowCurrentRow();
    void ShowTopRow();
    void ApplyColumnWidth(int column);
    bool IsActive() const;

    EntryList& m_list;
    EntryGrid& m_grid;
    // Set while the view follows the grid, so that the echo of its own
    // changes does not go back to the grid.
    bool m_following = false;
};

} // namespace heft
