#include "imageloading.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

bool IsDrawing(const QString& path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == u"svg"_s || suffix == u"svgz"_s;
}

QSize TargetSize(QSize natural, QSize fitInto)
{
    return fitInto.isEmpty() ? natural : natural.scaled(fitInto, Qt::KeepAspectRatio);
}

// A drawing is rendered at its final size rather than scaled as a bitmap.
LoadedImage ReadDrawing(const QString& path, QSize fitInto, qreal pixelRatio)
{
    QSvgRenderer renderer;
    if (!renderer.load(path) || renderer.defaultSize().isEmpty())
        return {{}, ImageInvalid, u"Die Zeichnung ist fehlerhaft"_s};
    const QSize logical = TargetSize(renderer.defaultSize(), fitInto);
    QImage image(logical * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    image.setDevicePixelRatio(pixelRatio);
    return {image, 0, {}};
}

LoadedImage ReadBitmap(const QString& path, QSize fitInto, qreal pixelRatio)
{
    QImageReader reader(path);
    QImage image = reader.read();
    if (image.isNull()) {
        const bool unknown = reader.error() == QImageReader::UnsupportedFormatError;
        return {{}, ImageInvalid, unknown ? u"Das Bildformat wird nicht unterstützt"_s : u"Die Bilddaten sind fehlerhaft"_s};
    }
    if (!fitInto.isEmpty()) {
        image = image.scaled(TargetSize(image.size(), fitInto) * pixelRatio, Qt::KeepAspectRatio,
                             Qt::SmoothTransformation);
        image.setDevicePixelRatio(pixelRatio);
    }
    return {image, 0, {}};
}

LoadedImage ReadImage(const QString& path, QSize fitInto, qreal pixelRatio)
{
    const QFileInfo file(path);
    LoadedImage loaded;
    if (!file.isFile())
        loaded = {{}, ImageFileNotFound, u"Die Datei fehlt"_s};
    else if (IsDrawing(path))
        loaded = ReadDrawing(path, fitInto, pixelRatio);
    else
        loaded = ReadBitmap(path, fitInto, pixelRatio);
    if (loaded.image.isNull())
        loaded.description += u": "_s + QDir::toNativeSeparators(path);
    return loaded;
}

} // namespace

LoadedImage LoadConfiguredImage(const QString& path, QSize fitInto, qreal pixelRatio)
{
    const LoadedImage named = ReadImage(path, fitInto, pixelRatio);
    if (!named.image.isNull())
        return named;

    const QFileInfo file(path);
    const QString stem = file.dir().filePath(file.completeBaseName());
    const QStringList siblings{stem + u".png"_s, stem + u".svg"_s};
    for (const QString& sibling : siblings) {
        if (sibling == path)
            continue;
        const LoadedImage found = ReadImage(sibling, fitInto, pixelRatio);
        if (!found.image.isNull())
            return found;
    }
    return named;
}

} // namespace heft
