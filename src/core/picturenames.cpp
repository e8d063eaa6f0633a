#include "picturenames.h"

#include "pathresolve.h"
#include "session.h"

using namespace Qt::StringLiterals;

namespace heft {

QString PictureFolder(const Configuration& config, const QString& kind)
{
    return ResolvePath(config.PictureRoot, kind + u"s/"_s + config.SeriesName + u" ("_s + config.ListKind + u')');
}

QString PictureFileName(int nr, const QString& kind, const QString& page, const QString& extension)
{
    return QString::number(nr) + kind + page + extension;
}

QString IllustrationPage(int page)
{
    return u"%1"_s.arg(page, 3, 10, QChar(u'0'));
}

const QStringList& PictureExtensions()
{
    static const QStringList extensions{u".jpg"_s, u".bmp"_s, u".gif"_s};
    return extensions;
}

} // namespace heft
