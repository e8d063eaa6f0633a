#pragma once
// The pictures of the toolbar buttons (the image list iml_tbar).

#include <QIcon>
#include <QString>

namespace heft {

QIcon ToolbarIcon(const QString& key);

} // namespace heft
