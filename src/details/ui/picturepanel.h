#pragma once
// The pictures on the "Bilder" tab of the detail window: files dropped on
// an artist box go into the store as the entry's picture of that kind, the
// buttons show a picture, and the buttons' colours remember how the last
// attempt for their kind ended. The list of illustration pages opens under
// btn_illu when there is more than one.

#include "core/drives.h"

#include <QObject>

#include <functional>

class QListWidget;
class QPushButton;
class QWidget;

namespace Ui {
class DetailWindow;
}

namespace heft {

class Session;

class PicturePanel : public QObject {
    Q_OBJECT

public:
    PicturePanel(Session& session, int nr, Ui::DetailWindow& ui, QWidget* window);

    // Where the archive CD is looked for; the mounted volumes unless set.
    void SetVolumes(std::function<QList<Volume>()> volumes) { m_volumes = std::move(volumes); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void AcceptDrops(QWidget* target, const QString& kind);
    void DropFile(const QString& kind, const QString& path);
    void ShowKind(const QString& pictureKind, QPushButton* button);
    void IlluClick();
    void ShowSelectedPage();

    Session& m_session;
    const int m_nr;
    Ui::DetailWindow& m_ui;
    QWidget* m_window;
    std::function<QList<Volume>()> m_volumes;
    std::function<void(const QString&)> m_status;
};

} // namespace heft
