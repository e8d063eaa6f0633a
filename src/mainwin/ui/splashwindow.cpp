#include "splashwindow.h"

#include "mainwin/imageloading.h"
#include "ui_splashwindow.h"

#include "core/session.h"
#include "core/version.h"

#include <QDesktopServices>
#include <QDir>
#include <QKeyEvent>
#include <QScreen>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

const QColor LinkHoverColour(0, 0, 255);

QUrl LinkTarget(const QObject* label)
{
    return label->objectName() == u"lblCompany"_s ? QUrl(u"https://www.quintara.example/heftarium"_s)
                                                   : QUrl(u"mailto:heftarium@quintara.example"_s);
}

// The window's style sheet gives every label its colour, so the hover colour
// must go into the label's own sheet to win over it.
void SetLinkHighlight(QWidget* link, bool on)
{
    link->setStyleSheet(on ? u"color: %1;"_s.arg(LinkHoverColour.name()) : QString());
}

} // namespace

// On top of the others: at start the main window appears while the splash is
// still meant to be seen over it.
SplashWindow::SplashWindow(Session& session, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_ui(std::make_unique<Ui::SplashWindow>()), m_session(session)
{
    m_ui->setupUi(this);
    m_ui->lbl_version->setText(u"Version "_s + ProgramVersion());

    for (QLabel* closer : {m_ui->imgLogo, m_ui->lblProductName, m_ui->lblWarning, m_ui->lblPlatform, m_ui->lblCopyright})
        closer->installEventFilter(this);
    for (QLabel* link : {m_ui->lblCompany, m_ui->lbl_personality3}) {
        link->setCursor(Qt::PointingHandCursor);
        link->setToolTip(LinkTarget(link).toString());
        link->installEventFilter(this);
    }

    // Fixed size, centred on the screen that holds the main window (or the
    // primary one at start, before there is a main window).
    setFixedSize(sizeHint());
    const QScreen* screen = parent != nullptr ? parent->screen() : QGuiApplication::primaryScreen();
    if (screen != nullptr)
        move(screen->availableGeometry().center() - rect().center());
}

SplashWindow::~SplashWindow() = default;

bool SplashWindow::LoadImages()
{
    const QDir bm(m_session.DataFolder + u"/bm"_s);
    const Configuration& config = m_session.Config;
    const QSize box = m_ui->imgLogo->minimumSize();

    LoadedImage splash = LoadConfiguredImage(bm.filePath(config.SplashFile), box, devicePixelRatio());
    if (splash.image.isNull()) {
        m_session.WriteLog(splash.error, u"Keine Splash Bild-Datei! --> Versuche Default\r\n"_s + splash.description);
        splash = LoadConfiguredImage(bm.filePath(u"Splash.svg"_s), box, devicePixelRatio());
    }
    m_ui->imgLogo->setPixmap(QPixmap::fromImage(splash.image));

    const LoadedImage logo = LoadConfiguredImage(bm.filePath(config.LogoFile));
    if (logo.image.isNull()) {
        m_session.WriteLog(logo.error, u"Keine Splash/Logo Bild-Datei!\r\n"_s + logo.description);
        m_session.prompter->Tell(u"Kritischer Fehler"_s,
                                 u"Die Logo/Splash Grafiken\nkonnten nicht gefunden werden.\n\nDer Heftarium wird beendet."_s,
                                 MessageIcon::Critical);
        return false;
    }
    return true;
}

void SplashWindow::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    close();
}

bool SplashWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool isLink = watched == m_ui->lblCompany || watched == m_ui->lbl_personality3;
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
        if (isLink)
            SetLinkHighlight(static_cast<QWidget*>(watched), event->type() == QEvent::Enter);
        break;
    case QEvent::MouseButtonRelease:
        if (isLink)
            QDesktopServices::openUrl(LinkTarget(watched));
        close();
        return true;
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace heft
