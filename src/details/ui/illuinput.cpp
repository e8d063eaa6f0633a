#include "illuinput.h"

#include "details/picturestore.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace heft {

IlluInput::IlluInput(QWidget* parent) : QDialog(parent), m_page(new QLineEdit(this))
{
    setObjectName(u"frm_illuinput"_s);
    setWindowTitle(u"Seitenzahl Illustration?"_s);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_page->setObjectName(u"txt_sz"_s);
    m_page->setMaxLength(3);
    m_page->setValidator(new QRegularExpressionValidator(QRegularExpression(u"[0-9]*"_s), m_page));
    auto* ok = new QPushButton(u"&Speichern"_s, this);
    ok->setObjectName(u"btn_ok"_s);
    ok->setDefault(true);
    auto* cancel = new QPushButton(u"&Abbrechen"_s, this);
    cancel->setObjectName(u"btn_nok"_s);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_page);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(ok, &QPushButton::clicked, this, &IlluInput::OkClick);
    connect(cancel, &QPushButton::clicked, this, &IlluInput::CancelClick);
    // Esc ends the dialog through reject(), as btn_nok does.
    connect(this, &QDialog::rejected, m_page, &QLineEdit::clear);
}

QString IlluInput::Page() const { return m_page->text(); }

void IlluInput::OkClick()
{
    m_page->setText(PageFromAnswer(m_page->text()));
    accept();
}

void IlluInput::CancelClick()
{
    m_page->clear();
    reject();
}

QString AskIllustrationPage(QWidget* parent)
{
    IlluInput input(parent);
    input.exec();
    return input.Page();
}

} // namespace heft
