#pragma once
// Real collection files in temporary folders, built by the same code that
// builds the shipped files, and a session wired to a scripted prompter.

#include "core/prompter.h"
#include "core/session.h"

#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

namespace heft::test {

struct TestEntry {
    TestEntry(int nr_, QString autor_, QString titel_, int auflage_ = 0,
              QString zyklus_ = QStringLiteral("- - -"), bool gelesen_ = false, QString bemerkung_ = {})
        : nr(nr_), autor(std::move(autor_)), titel(std::move(titel_)), auflage(auflage_),
          zyklus(std::move(zyklus_)), gelesen(gelesen_), bemerkung(std::move(bemerkung_))
    {
    }
    int nr;
    QString autor;
    QString titel;
    int auflage;
    QString zyklus;
    bool gelesen;
    QString bemerkung; // a null string is stored as NULL
};

class TempCollection {
public:
    // A new file "Test.mdb" in a fresh temporary folder, opened in session.
    explicit TempCollection(const QString& series = QStringLiteral("Valdorin"),
                            const QString& kind = QStringLiteral("Heftromane"));
    QString Path() const { return dir.filePath(QStringLiteral("Test.mdb")); }
    // Inserts entries with plain SQL (not through the editor's writers).
    void Add(const QList<TestEntry>& entries);
    // Runs SQL that must succeed (test set-up).
    void Exec(const QString& sql);
    QVariant Value(const QString& sql);
    // Closes the file for another user (the cli) and opens it again.
    void Close() { session.CollectionDb.reset(); }
    void Reopen();

    QTemporaryDir dir;
    ScriptedPrompter prompter;
    Session session;
};

// Works the modal dialogs of one name as they open, one step each, in order.
// A dialog that a step leaves open, and any beyond the steps, is noted and
// rejected, so that the test goes on and can tell.
class ModalScript {
public:
    explicit ModalScript(const QString& name);
    void Then(std::function<void(QDialog&)> step) { m_steps.append(std::move(step)); }
    qsizetype Pending() const { return m_steps.size(); }
    int opened = 0;
    bool leftOpen = false;

private:
    void Poll();
    QString m_name;
    QList<std::function<void(QDialog&)>> m_steps;
    QTimer m_timer;
};

// A child that must be there.
template <typename T> T* Child(const QWidget& parent, const QString& name)
{
    T* child = parent.findChild<T*>(name);
    if (child == nullptr)
        qFatal("no %s", qPrintable(name));
    return child;
}

// Writes a file of a test's folder tree, creating its folders.
void WriteFile(const QString& path, const QByteArray& bytes = "x");

} // namespace heft::test
