#include "placement.h"

#include "textfuncs.h"

#include <QFile>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace heft {

QString PlacementLogText(const WindowPlacement& placement)
{
    return u"FB=%1\r\nFH=%2\r\nFX=%3\r\nFY=%4"_s.arg(placement.width)
        .arg(placement.height)
        .arg(placement.left)
        .arg(placement.top);
}

// Each guard sees the values taken before it, so the left and top limits
// use a width and height already read from the same entry.
void ReadPlacementFromLog(const QString& logPath, int screenWidth, int screenHeight,
                          WindowPlacement& placement)
{
    QFile file(logPath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');

    bool inConfig = false;
    for (QString line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (!inConfig) {
            inConfig = line == "[Konfig]"_L1;
            continue;
        }
        const QStringView key = QStringView(line).left(3);
        const double value = Val(line.mid(3));
        if (key == u"FB=") {
            if (value >= placement.width && value <= screenWidth)
                placement.width = qRound(value);
        } else if (key == u"FH=") {
            if (value >= 2500 && value <= screenHeight)
                placement.height = qRound(value);
        } else if (key == u"FX=") {
            if (value > 0 && value <= screenWidth - placement.width)
                placement.left = qRound(value);
        } else if (key == u"FY=") {
            if (value > 0 && value <= screenHeight - placement.height)
                placement.top = qRound(value);
        }
    }
}

} // namespace heft
