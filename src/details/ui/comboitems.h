#pragma once
// Filling the editable name boxes of the detail window.

#include <QStringList>

class QComboBox;

namespace heft {

// Gives an editable combo box its list and leaves its text as it was: a
// combo box that gets its first item would otherwise show that item.
void SetComboItems(QComboBox& combo, const QStringList& items);

// Editable name boxes take what is typed, as typed: no completion from the
// list, and Enter adds nothing to it.
void MakeNameBox(QComboBox& combo);

} // namespace heft
