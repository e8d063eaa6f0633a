#include "pathresolve.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The entry of folder whose name equals name but for case, or name itself.
QString MatchingEntry(const QString& folder, const QString& name)
{
    const QStringList entries = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString& entry : entries)
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    return name;
}

} // namespace

QString ResolvePath(const QString& base, const QString& relative)
{
    QString normalized = relative;
    normalized.replace(u'\\', u'/');
    if (normalized.startsWith(u'/'))
        return {};
    const QStringList names = normalized.split(u'/', Qt::SkipEmptyParts);
    for (const QString& name : names)
        if (name == u".."_s || name == u"."_s)
            return {};
    QString path = base;
    if (!path.endsWith(u'/'))
        path += u'/';
    const QString exact = path + names.join(u'/');
    // The common case costs one look at the disk.
    if (QFileInfo::exists(exact))
        return exact;
    bool found = true;
    for (qsizetype i = 0; i < names.size(); ++i) {
        const QString& name = names[i];
        if (i > 0)
            path += u'/';
        // Once a folder is missing nothing below it can be listed.
        if (found && !QFileInfo::exists(path + name)) {
            const QString entry = MatchingEntry(path, name);
            found = entry != name;
            path += entry;
        } else {
            path += name;
        }
    }
    return path;
}

} // namespace heft
