#pragma once
// The small arrows that mark the sort column's header cell: pic_up for an
// ascending, pic_down for a descending sort.

#include "entrygridmodel.h"

#include <QPixmap>

namespace heft {

// Side length of the arrow pictures in pixels.
constexpr int SortPictureSize = 12;

// A null pixmap for SortPicture::None.
QPixmap SortPicturePixmap(SortPicture picture);

} // namespace heft
