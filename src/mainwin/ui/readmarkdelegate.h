#pragma once
// Paints the read mark of column 5 as a green check mark. The cell's text
// stays the mark character, since the editor and the sort read it.

#include <QStyledItemDelegate>

namespace heft {

class ReadMarkDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace heft
