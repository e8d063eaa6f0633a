#pragma once
// frm_tibi: shows one picture of the entry, scaled to fit 720 x 540 pixels,
// until a click on it or a key. Before it opens, the picture is looked for
// in the store and, for a cover, in the archive; the status bar tells how
// that went.

#include "details/picturestore.h"

#include <QDialog>

#include <functional>

class QLabel;

namespace heft {

class Session;

class PictureViewer : public QDialog {
    Q_OBJECT

public:
    // An empty image opens the window without a picture.
    PictureViewer(const QImage& image, const QString& caption, QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLabel* m_image;
};

// How a lookup is reported: the status bar text, and whether a picture was
// found, told before the viewer opens so that the kind's button already
// shows its colour while the picture is up.
struct PictureReport {
    std::function<void(const QString&)> status;
    std::function<void(bool found)> outcome = [](bool) {};
};

// Looks the picture up and shows it modally when found. pictureKind is
// "tibi", "rize" or "illu" with its page.
void ShowPicture(Session& session, int nr, const QString& pictureKind, const QList<Volume>& volumes,
                 const PictureReport& report, QWidget* parent);

} // namespace heft
