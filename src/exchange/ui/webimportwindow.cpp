#include "webimportwindow.h"
#include "ui_webimportwindow.h"

#include "core/textfuncs.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace heft {

WebImportWindow::WebImportWindow(QWidget* parent, int lastNr)
    : QDialog(parent), m_ui(std::make_unique<Ui::WebImportWindow>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    // The up-down controls show only their arrows beside their boxes.
    for (QSpinBox* upDown : {m_ui->ud_start, m_ui->ud_end}) {
        upDown->setFixedWidth(upDown->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 6);
        upDown->setFixedHeight(m_ui->txt_start->sizeHint().height());
    }
    ShowTexts(InitialWebRange(lastNr));

    connect(m_ui->ud_start, &QSpinBox::valueChanged, this,
            [this](int value) { Stepped(m_ui->ud_start, m_ui->txt_start, value); });
    connect(m_ui->ud_end, &QSpinBox::valueChanged, this,
            [this](int value) { Stepped(m_ui->ud_end, m_ui->txt_end, value); });
    m_ui->txt_start->installEventFilter(this);
    m_ui->txt_end->installEventFilter(this);
    connect(m_ui->btn_webimport, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->btn_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

WebImportWindow::~WebImportWindow() = default;

WebImportRequest WebImportWindow::Request() const
{
    WebImportRequest request;
    request.first = static_cast<int>(Val(m_ui->txt_start->text()));
    request.last = static_cast<int>(Val(m_ui->txt_end->text()));
    request.covers = m_ui->chk_tibi->isChecked();
    request.illustrations = m_ui->chk_illu->isChecked();
    return request;
}

WebRangeTexts WebImportWindow::Texts() const { return {m_ui->txt_start->text(), m_ui->txt_end->text()}; }

void WebImportWindow::ShowTexts(const WebRangeTexts& range)
{
    m_ui->txt_start->setText(range.start);
    m_ui->txt_end->setText(range.end);
    // Each up-down steps on from what its box says now.
    const QSignalBlocker startBlocker(m_ui->ud_start);
    const QSignalBlocker endBlocker(m_ui->ud_end);
    m_ui->ud_start->setValue(static_cast<int>(Val(range.start)));
    m_ui->ud_end->setValue(static_cast<int>(Val(range.end)));
}

void WebImportWindow::Stepped(QSpinBox* upDown, QLineEdit* box, int value)
{
    upDown->setFocus();
    box->setText(QString::number(value));
    WebRangeTexts range = Texts();
    if (box == m_ui->txt_start)
        CheckRangeStart(range);
    else
        CheckRangeEnd(range);
    ShowTexts(range);
}

void WebImportWindow::Checked(QLineEdit* box)
{
    WebRangeTexts range = Texts();
    if (box == m_ui->txt_start) {
        CheckRangeStart(range);
        range.start = NormalisedNumber(range.start);
    } else {
        CheckRangeEnd(range);
        range.end = NormalisedNumber(range.end);
    }
    ShowTexts(range);
}

bool WebImportWindow::KeyPasses(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_ui->btn_webimport->click();
        return false;
    case Qt::Key_Escape:
        m_ui->btn_cancel->click();
        return false;
    case Qt::Key_Backspace:
        return true;
    default:
        break;
    }
    const QString typed = event->text();
    return typed.isEmpty() || !typed[0].isPrint() || (typed.size() == 1 && typed[0] >= u'0' && typed[0] <= u'9');
}

bool WebImportWindow::eventFilter(QObject* watched, QEvent* event)
{
    auto* box = qobject_cast<QLineEdit*>(watched);
    if (box != nullptr && event->type() == QEvent::KeyPress)
        return !KeyPasses(static_cast<QKeyEvent*>(event));
    if (box != nullptr && event->type() == QEvent::FocusOut)
        Checked(box);
    return QDialog::eventFilter(watched, event);
}

} // namespace heft
