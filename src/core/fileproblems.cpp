#include "fileproblems.h"

#include "jeterrors.h"
#include "session.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace heft {

QString FileProblemText(const DbError& error)
{
    switch (error.number) {
    case JetDiskFull:
        return u"Auf dem Datenträger ist kein Platz mehr frei. Schaffe Platz und versuche es dann noch einmal."_s;
    case JetDiskError:
        return u"Der Datenträger meldet einen Fehler beim Lesen oder Schreiben."_s;
    case JetReadOnly:
        return u"Die Datei ist schreibgeschützt oder liegt auf einem Datenträger, der nur gelesen werden kann."_s;
    case JetDamaged:
        return u"Die Datei ist beschädigt. Heftarium schreibt nichts mehr hinein; hol Dir die letzte Sicherung "
               "aus dem Ordner \"Sicherung\" zurück (siehe Hilfe: Sicherungen)."_s;
    case JetPathGone:
        return u"Die Datei ist nicht mehr da: Ihr Ordner wurde entfernt, umbenannt oder der Datenträger "
               "abgezogen."_s;
    case JetNotADatabase:
        return u"Die Datei ist leer oder keine Heftarium-Datenbank."_s;
    case JetFileInUse:
        return u"Die Datei wird schon von einem anderen Programm benutzt."_s;
    case JetFileNotFound:
        return u"Die Datei wurde nicht gefunden."_s;
    default:
        return {};
    }
}

void ReportLostChange(Session& session, const Database& db, const DbError& error)
{
    const QString file = QDir::toNativeSeparators(db.Path());
    QString reason = FileProblemText(error);
    if (reason.isEmpty())
        reason = error.description;
    session.WriteLog(error.number, u"Änderung nicht gespeichert in %1: %2 (%3)"_s.arg(file, reason, error.description));
    if (session.prompter)
        session.prompter->Tell(u"Änderung nicht gespeichert"_s,
                               u"Die Änderung konnte nicht in die Datei\n\n'%1'\n\ngeschrieben werden.\n\n%2\n\n"
                               "Die Datei ist so geblieben, wie sie vor der Änderung war."_s.arg(file, reason),
                               MessageIcon::Exclamation);
}

} // namespace heft
