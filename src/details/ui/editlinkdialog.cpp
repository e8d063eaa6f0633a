#include "editlinkdialog.h"
#include "ui_editlinkdialog.h"

#include "core/textfuncs.h"

#include <QKeyEvent>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace heft {

EditLinkDialog::EditLinkDialog(const LinkRow& link, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::EditLinkDialog>())
{
    m_ui->setupUi(this);
    m_ui->txt_nr->setText(QString::number(link.number));
    m_ui->txt_link->setText(link.text);
    m_ui->txt_serie->setText(link.series);
    for (QLineEdit* box : {m_ui->txt_nr, m_ui->txt_link, m_ui->txt_serie})
        box->installEventFilter(this);
    connect(m_ui->btn_ok, &QPushButton::clicked, this, &EditLinkDialog::AcceptLink);
    connect(m_ui->btn_nok, &QPushButton::clicked, this, &QDialog::reject);
}

EditLinkDialog::~EditLinkDialog() = default;

LinkRow EditLinkDialog::Link() const
{
    return {m_ui->txt_nr->text().toInt(), m_ui->txt_link->text(), m_ui->txt_serie->text()};
}

void EditLinkDialog::AcceptLink()
{
    // Leading zeros go, and an empty box reads as 0, which no entry has.
    const auto number = static_cast<int>(Val(m_ui->txt_nr->text()));
    m_ui->txt_nr->setText(QString::number(number));
    if (number < 1) {
        m_ui->txt_nr->setFocus();
        m_ui->txt_nr->selectAll();
        return;
    }
    accept();
}

bool EditLinkDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        // After the click that brought the focus, which would place the
        // cursor and undo the selection.
        if (auto* box = qobject_cast<QLineEdit*>(watched))
            QTimer::singleShot(0, box, &QLineEdit::selectAll);
    } else if (event->type() == QEvent::KeyPress && watched == m_ui->txt_nr) {
        // Only digits are typed; keys that type no character (Backspace,
        // Enter, the arrows) keep their work.
        const QString typed = static_cast<QKeyEvent*>(event)->text();
        if (!typed.isEmpty() && typed.front().isPrint() && (typed.front() < u'0' || typed.front() > u'9'))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace heft
