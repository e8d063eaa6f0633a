#include "exportjob.h"

#include "core/codepage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

QString ExportTarget::Path(const QString& suffix) const
{
    return QDir(folder).filePath(baseName + suffix);
}

QString ExportTarget::DetailsFolderName() const
{
    return baseName + u"_Details"_s;
}

QString ExportTarget::DetailsFolder() const
{
    return QDir(folder).filePath(DetailsFolderName());
}

void ExportFeedback::Status(const QString& text) const
{
    if (status)
        status(text);
}

void ExportFeedback::Start(int maximum) const
{
    if (startProgress)
        startProgress(maximum);
}

void ExportFeedback::Progress(int value) const
{
    if (progress)
        progress(value);
}

void ExportFeedback::Finish() const
{
    if (finishProgress)
        finishProgress();
}

bool WriteExportFile(const QString& path, const QString& text)
{
    // An old file is overwritten in place and cut to the new length rather
    // than emptied first: emptying makes the file system free the blocks and
    // flush the file at close, which for thousands of detail pages costs
    // many times what writing them does.
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) && !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    const QByteArray bytes = ToWindows1252(text);
    return file.write(bytes) == bytes.size() && file.resize(bytes.size()) && file.flush();
}

qint64 ExportFileSize(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() ? info.size() : -1;
}

} // namespace heft
