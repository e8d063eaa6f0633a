#include "toolbaricons.h"

#include <QApplication>
#include <QHash>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace heft {

QIcon ToolbarIcon(const QString& key)
{
    // The style's own pictures look at home on every desktop.
    static const QHash<QString, QStyle::StandardPixmap> pictures = {
        {u"edit"_s, QStyle::SP_FileDialogContentsView}, {u"insert"_s, QStyle::SP_FileDialogNewFolder},
        {u"delete"_s, QStyle::SP_TrashIcon},            {u"goto"_s, QStyle::SP_ArrowForward},
        {u"filter"_s, QStyle::SP_FileDialogListView},   {u"stat"_s, QStyle::SP_FileDialogInfoView},
        {u"print"_s, QStyle::SP_DriveFDIcon},           {u"import"_s, QStyle::SP_ArrowDown},
        {u"export"_s, QStyle::SP_ArrowUp},              {u"zykinfo"_s, QStyle::SP_BrowserReload},
        {u"info"_s, QStyle::SP_MessageBoxInformation},  {u"help"_s, QStyle::SP_MessageBoxQuestion},
        {u"quit"_s, QStyle::SP_DialogCloseButton},
    };
    return QApplication::style()->standardIcon(pictures.value(key, QStyle::SP_CustomBase));
}

} // namespace heft
