#include "messageboxprompter.h"

#include <QApplication>
#include <QHash>
#include <QMessageBox>

namespace heft {

Answer MessageBoxPrompter::Ask(const Message& message)
{
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    switch (message.icon) {
    case MessageIcon::Information: icon = QMessageBox::Information; break;
    case MessageIcon::Question: icon = QMessageBox::Question; break;
    case MessageIcon::Exclamation: icon = QMessageBox::Warning; break;
    case MessageIcon::Critical: icon = QMessageBox::Critical; break;
    case MessageIcon::None: break;
    }
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    if (message.buttons == MessageButtons::OkCancel)
        buttons = QMessageBox::Ok | QMessageBox::Cancel;
    else if (message.buttons == MessageButtons::YesNo)
        buttons = QMessageBox::Yes | QMessageBox::No;
    else if (message.buttons == MessageButtons::RetryCancel)
        buttons = QMessageBox::Retry | QMessageBox::Cancel;
    // Some texts break their lines with a lone carriage return.
    QString text = message.text;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    QMessageBox box(icon, message.title, text, buttons, QApplication::activeWindow());
    if (message.defaultButton) {
        static const QHash<Answer, QMessageBox::StandardButton> buttonOf = {
            {Answer::Ok, QMessageBox::Ok}, {Answer::Cancel, QMessageBox::Cancel},
            {Answer::Yes, QMessageBox::Yes}, {Answer::No, QMessageBox::No}, {Answer::Retry, QMessageBox::Retry}};
        box.setDefaultButton(buttonOf.value(*message.defaultButton));
    }
    switch (box.exec()) {
    case QMessageBox::Cancel: return Answer::Cancel;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Retry: return Answer::Retry;
    default: return Answer::Ok;
    }
}

} // namespace heft
