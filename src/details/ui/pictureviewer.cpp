#include "pictureviewer.h"

#include "core/picturenames.h"
#include "core/session.h"
#include "mainwin/twips.h"

#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString ViewerCaption(const PictureKind& kind, int nr)
{
    QString caption = kind.kind == KindWord(CoverKind)     ? u"Titelbild"_s
                      : kind.kind == KindWord(CutawayKind) ? u"Rißzeichnung"_s
                                                 : u"Innenillustration Seite "_s + kind.page;
    return caption + u" [#%1]"_s.arg(nr);
}

} // namespace

PictureViewer::PictureViewer(const QImage& image, const QString& caption, QWidget* parent)
    : QDialog(parent), m_image(new QLabel(this))
{
    setObjectName(u"frm_tibi"_s);
    setWindowTitle(caption);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_image->setObjectName(u"img_tibi"_s);
    auto* layout = new QVBoxLayout(this);
    // The window is the picture and 80 twips, half of them on each side.
    const int margin = TwipsToPixels(40);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_image);
    if (!image.isNull()) {
        const QSize shown = ShownPictureSize(image.size());
        m_image->setPixmap(QPixmap::fromImage(
            shown == image.size() ? image : image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
        m_image->setFixedSize(shown);
    }
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void PictureViewer::mousePressEvent(QMouseEvent* event)
{
    QDialog::mousePressEvent(event);
    accept();
}

void PictureViewer::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    accept();
}

void ShowPicture(Session& session, int nr, const QString& pictureKind, const QList<Volume>& volumes,
                 const PictureReport& report, QWidget* parent)
{
    report.status(u"Suche Titelbild ..."_s);
    const PictureKind kind = SplitPictureKind(pictureKind);
    QImage image;
    const auto load = [&image](const QString& path) {
        QImageReader reader(path);
        image = reader.read();
        return !image.isNull();
    };
    const PictureFound found = ChoosePicture(FindPictureCandidates(session.Config, volumes, nr, kind), load);
    if (found.lookup == PictureLookup::Missing) {
        report.outcome(false);
        report.status(PictureMissingText(kind.kind));
        return;
    }
    if (found.lookup == PictureLookup::Empty)
        image = QImage();
    report.status(u"Fertig und Bereit."_s);
    report.outcome(true);
    PictureViewer viewer(image, ViewerCaption(kind, nr), parent);
    viewer.exec();
}

} // namespace heft
