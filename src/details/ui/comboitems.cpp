#include "comboitems.h"

#include <QComboBox>

namespace heft {

void SetComboItems(QComboBox& combo, const QStringList& items)
{
    const QString text = combo.currentText();
    combo.clear();
    combo.addItems(items);
    combo.setCurrentIndex(-1);
    combo.setEditText(text);
}

void MakeNameBox(QComboBox& combo)
{
    combo.setEditable(true);
    combo.setCompleter(nullptr);
    combo.setInsertPolicy(QComboBox::NoInsert);
}

} // namespace heft
