#include "statusbar.h"

#include "lockkeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

enum class Fit { Fixed, Spring, Content };

struct PanelLayout {
    Qt::Alignment align;
    int minWidth; // pixels
    Fit fit;
    const char16_t* text;
    const char16_t* toolTip;
};

constexpr std::array<PanelLayout, 6> Panels{{
    {Qt::AlignCenter, 40, Fit::Content, u"Caps", u""},
    {Qt::AlignCenter, 40, Fit::Content, u"Num", u""},
    {Qt::AlignCenter, 90, Fit::Fixed, u"1/9999", u"Mausklick = Gehe zu ..."},
    {Qt::AlignCenter, 180, Fit::Fixed, u"- - - - -", u""},
    {Qt::AlignLeft | Qt::AlignVCenter, 10, Fit::Spring, u"Initialisiere Strukturen ...",
     u"Mausklick = Hilfe"},
    {Qt::AlignCenter, 10, Fit::Content, u"-", u"Filter: KEINER"},
}};

} // namespace

StatusBar::StatusBar(QWidget* parent) : QStatusBar(parent)
{
    setObjectName(u"sbar_stat"_s);
    setSizeGripEnabled(true);
    for (size_t i = 0; i < Panels.size(); ++i) {
        const PanelLayout& layout = Panels[i];
        auto* panel = new QLabel(QString::fromUtf16(layout.text), this);
        panel->setObjectName(u"sbar_panel%1"_s.arg(i + 1));
        panel->setAlignment(layout.align);
        panel->setToolTip(QString::fromUtf16(layout.toolTip));
        panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        panel->setMargin(1);
        if (layout.fit == Fit::Fixed)
            panel->setFixedWidth(layout.minWidth);
        else
            panel->setMinimumWidth(layout.minWidth);
        addWidget(panel, layout.fit == Fit::Spring ? 1 : 0);
        m_panels[i] = panel;
    }
    // One filter on the application sees both the lock keys, wherever the
    // focus is, and the clicks on the panels.
    qApp->installEventFilter(this);
    RefreshLockPanels();
}

StatusBar::~StatusBar()
{
    qApp->removeEventFilter(this);
}

void StatusBar::SetStatusPanel(int panel, const QString& text)
{
    switch (panel) {
    case 3:
    case 5:
        Panel(panel)->setText(text);
        break;
    case 6:
        Panel(6)->setText(text);
        Panel(6)->setToolTip(text == u"F"_s ? u"Mausklick = FILTER anzeigen"_s : u"Filter: KEINER"_s);
        break;
    default:
        break;
    }
}

QString StatusBar::PanelText(int panel) const
{
    return Panel(panel)->text();
}

QRect StatusBar::PanelGeometry(int panel) const
{
    return Panel(panel)->geometry();
}

void StatusBar::RefreshLockPanels()
{
    // An unknown state leaves the panel as a plain label.
    Panel(1)->setEnabled(LockKeyState(LockKey::Caps).value_or(true));
    Panel(2)->setEnabled(LockKeyState(LockKey::Num).value_or(true));
}

bool StatusBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyRelease) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_CapsLock || key == Qt::Key_NumLock)
            RefreshLockPanels();
    } else if (event->type() == QEvent::MouseButtonRelease
               && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        for (size_t i = 0; i < m_panels.size(); ++i) {
            if (watched == m_panels[i])
                Q_EMIT PanelClicked(static_cast<int>(i) + 1);
        }
    }
    return QStatusBar::eventFilter(watched, event);
}

} // namespace heft
