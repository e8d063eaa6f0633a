#pragma once
// Real collection files in temporary folders, built by the same code that
// builds the shipped files, and a session wired to a scripted prompter.

#include "core/prompter.h"
#include "core/session.h"

#include <QTemporaryDir>

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

    QTemporaryDir dir;
    ScriptedPrompter prompter;
    Session session;
};

// Writes a file of a test's folder tree, creating its folders.
void WriteFile(const QString& path, const QByteArray& bytes = "x");

} // namespace heft::test
