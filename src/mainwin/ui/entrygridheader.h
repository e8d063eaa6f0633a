#pragma once
// The header row of an entry grid. It draws the sort picture on the side the
// model names (left of the right-aligned "Nr", right of the others), and a
// double-click on it is reported with its position, so that the list can
// tell which column border was hit.

#include <QHeaderView>

namespace heft {

class EntryGridHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit EntryGridHeader(QWidget* parent = nullptr);

Q_SIGNALS:
    // x in pixels from the left edge of the first column.
    void DoubleClicked(int x);

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace heft
