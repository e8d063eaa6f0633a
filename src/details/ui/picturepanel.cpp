#include "picturepanel.h"
#include "ui_detailwindow.h"

#include "illuinput.h"
#include "pictureviewer.h"

#include "core/picturenames.h"
#include "core/session.h"
#include "details/picturestore.h"
#include "mainwin/ui/mainwindow.h"

#include <QDropEvent>
#include <QtMath>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The button colours: the last attempt found a picture, or none.
const QString FoundColour = u"background-color: rgb(192, 255, 192);"_s;
const QString MissingColour = u"background-color: rgb(255, 192, 128);"_s;

// The status bar of the main window the detail window belongs to.
std::function<void(const QString&)> MainStatus(QWidget* window)
{
    return [window](const QString& text) {
        for (QWidget* ancestor = window; ancestor != nullptr; ancestor = ancestor->parentWidget())
            if (auto* main = qobject_cast<MainWindow*>(ancestor)) {
                main->SetStatusPanel(5, text);
                return;
            }
    };
}

// The first dropped local file, or empty.
QString DroppedFile(const QMimeData* data)
{
    if (data == nullptr || !data->hasUrls())
        return {};
    const QList<QUrl> urls = data->urls();
    return urls.isEmpty() || !urls.front().isLocalFile() ? QString() : urls.front().toLocalFile();
}

} // namespace

PicturePanel::PicturePanel(Session& session, int nr, Ui::DetailWindow& ui, QWidget* window)
    : QObject(window), m_session(session), m_nr(nr), m_ui(ui), m_window(window), m_volumes(MountedVolumes),
      m_status(MainStatus(window))
{
    AcceptDrops(ui.cmb_tibi, KindWord(CoverKind));
    AcceptDrops(ui.txt_tibi, KindWord(CoverKind));
    AcceptDrops(ui.cmb_rize, KindWord(CutawayKind));
    AcceptDrops(ui.txt_rize, KindWord(CutawayKind));
    AcceptDrops(ui.cmb_illu, KindWord(IllustrationKind));
    AcceptDrops(ui.txt_illu, KindWord(IllustrationKind));
    connect(ui.btn_tibi, &QPushButton::clicked, this, [this] { ShowKind(KindWord(CoverKind), m_ui.btn_tibi); });
    connect(ui.btn_rize, &QPushButton::clicked, this, [this] { ShowKind(KindWord(CutawayKind), m_ui.btn_rize); });
    connect(ui.btn_illu, &QPushButton::clicked, this, &PicturePanel::IlluClick);
    connect(ui.lst_illu, &QListWidget::itemActivated, this, &PicturePanel::ShowSelectedPage);
    ui.lst_illu->installEventFilter(this);
    connect(ui.tab_detail, &QTabWidget::currentChanged, ui.lst_illu, &QWidget::hide);
}

void PicturePanel::AcceptDrops(QWidget* target, const QString& kind)
{
    // An editable box hands the drag to its line edit.
    QList<QWidget*> receivers{target};
    if (auto* combo = qobject_cast<QComboBox*>(target); combo && combo->lineEdit())
        receivers << combo->lineEdit();
    for (QWidget* receiver : receivers) {
        receiver->setAcceptDrops(true);
        receiver->setProperty("pictureKind", kind);
        receiver->installEventFilter(this);
    }
}

bool PicturePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui.lst_illu) {
        const bool escape =
            event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        if (escape || event->type() == QEvent::FocusOut)
            m_ui.lst_illu->hide();
        return escape;
    }
    const QString kind = watched->property("pictureKind").toString();
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: {
        auto* drag = static_cast<QDragMoveEvent*>(event);
        if (DroppedFile(drag->mimeData()).isEmpty())
            return false;
        drag->acceptProposedAction();
        return true;
    }
    case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        const QString path = DroppedFile(drop->mimeData());
        if (path.isEmpty())
            return false;
        drop->acceptProposedAction();
        DropFile(kind, path);
        return true;
    }
    default:
        return false;
    }
}

void PicturePanel::DropFile(const QString& kind, const QString& path)
{
    DropPicture(m_session, m_nr, kind, path, [this] { return AskIllustrationPage(m_window); });
}

void PicturePanel::ShowKind(const QString& pictureKind, QPushButton* button)
{
    const auto colour = [button](bool found) { button->setStyleSheet(found ? FoundColour : MissingColour); };
    ShowPicture(m_session, m_nr, pictureKind, m_volumes(), {m_status, colour}, m_window);
}

void PicturePanel::IlluClick()
{
    QListWidget* list = m_ui.lst_illu;
    if (list->isVisible()) {
        list->hide();
        return;
    }
    list->clear();
    const QStringList pages = IllustrationPages(m_session.Config, m_nr);
    for (const QString& page : pages)
        list->addItem(u"Seite "_s + page);
    if (pages.isEmpty()) {
        m_ui.btn_illu->setStyleSheet(MissingColour);
        m_status(PictureMissingText(KindWord(IllustrationKind)));
        return;
    }
    // As many rows as the twips height holds, at this list's own row
    // height, so that no row is cut off by taller fonts.
    const double rowsShown = IllustrationListRows(static_cast<int>(pages.size()));
    list->setFixedHeight(2 * list->frameWidth() + qCeil(rowsShown * list->sizeHintForRow(0)));
    list->setCurrentRow(0);
    if (pages.size() == 1) {
        ShowSelectedPage();
        return;
    }
    list->show();
    list->setFocus();
}

void PicturePanel::ShowSelectedPage()
{
    QListWidget* list = m_ui.lst_illu;
    list->hide();
    if (list->currentItem() == nullptr)
        return;
    ShowKind(KindWord(IllustrationKind) + list->currentItem()->text().right(3), m_ui.btn_illu);
}

} // namespace heft
