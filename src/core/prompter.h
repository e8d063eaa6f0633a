#pragma once
// Every question and message to the user goes through one Prompter, so that
// the program shows QMessageBoxes and the tests answer from a script.

#include <QList>
#include <QString>

#include <optional>

namespace heft {

enum class MessageIcon { None, Information, Question, Exclamation, Critical };
enum class MessageButtons { Ok, OkCancel, YesNo, RetryCancel };
enum class Answer { Ok, Cancel, Yes, No, Retry };

struct Message {
    QString title;
    QString text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    // The button Enter presses; the first one when not given.
    std::optional<Answer> defaultButton = std::nullopt;
};

class Prompter {
public:
    virtual ~Prompter() = default;
    virtual Answer Ask(const Message& message) = 0;
    void Tell(const QString& title, const QString& text, MessageIcon icon)
    {
        Ask(Message{title, text, icon, MessageButtons::Ok});
    }
};

// Answers from a queue and records what it was asked; for tests and for the
// command-line tool (which answers "No"/"Cancel" when the queue is empty).
class ScriptedPrompter : public Prompter {
public:
    Answer Ask(const Message& message) override
    {
        asked.append(message);
        if (!answers.isEmpty())
            return answers.takeFirst();
        switch (message.buttons) {
        case MessageButtons::YesNo: return Answer::No;
        case MessageButtons::OkCancel:
        case MessageButtons::RetryCancel: return Answer::Cancel;
        case MessageButtons::Ok: break;
        }
        return Answer::Ok;
    }
    QList<Answer> answers;
    QList<Message> asked;
};

} // namespace heft
