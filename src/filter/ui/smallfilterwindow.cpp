#include "smallfilterwindow.h"
#include "ui_smallfilterwindow.h"

#include <QTimer>

namespace heft {

SmallFilterWindow::SmallFilterWindow(const QString& filterText, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::SmallFilterWindow>())
{
    m_ui->setupUi(this);
    // The text can't be edited, and its box says so by the colour of a
    // button face.
    QPalette palette = m_ui->txt_filter->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Button));
    m_ui->txt_filter->setPalette(palette);
    m_ui->txt_filter->setPlainText(filterText);
    m_ui->txt_filter->installEventFilter(this);
    // btn_dummy holds the focus at first, so that the sentence does not open
    // selected; it is not shown and does nothing.
    m_ui->btn_dummy->setFocus();
}

SmallFilterWindow::~SmallFilterWindow() = default;

bool SmallFilterWindow::eventFilter(QObject* watched, QEvent* event)
{
    // Whoever tabs or clicks into the sentence gets all of it, to copy it.
    if (watched == m_ui->txt_filter && event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, m_ui->txt_filter, &QPlainTextEdit::selectAll);
    return QDialog::eventFilter(watched, event);
}

} // namespace heft
