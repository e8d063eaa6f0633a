// heftarium-cli --db PATH import FILE [--mode 0|1|2] [--details]: the file
// import of the import window over the full list loaded from the collection,
// printing the window's two report boxes.

#include "cliexchange.h"
#include "clihelp.h"

#include "core/config.h"
#include "core/session.h"
#include "core/sqlwriters.h"
#include "exchange/importengine.h"
#include "mainwin/entrylist.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

struct ImportRequest {
    QString path;
    ImportMode mode = ImportMode::Insert;
    bool withDetails = false;
};

// False when the words are not understood.
bool ReadRequest(const QStringList& words, ImportRequest& request)
{
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        if (word == u"--details") {
            request.withDetails = true;
        } else if (word == u"--mode") {
            const QString mode = words.value(++i);
            if (mode != u"0" && mode != u"1" && mode != u"2")
                return false;
            request.mode = static_cast<ImportMode>(mode.toInt());
        } else if (request.path.isEmpty() && !word.startsWith(u"--"_s)) {
            request.path = word;
        } else {
            return false;
        }
    }
    return !request.path.isEmpty();
}

// The cycle file "{Series} Zyklus.mdb" beside the collection, if there is one.
void OpenCycleDatabase(Session& session)
{
    const QString path = QFileInfo(session.CollectionDb->Path()).absoluteDir().filePath(session.Config.SeriesName +
                                                                                       u" Zyklus.mdb"_s);
    DbError error;
    if (QFileInfo::exists(path))
        session.CycleDb = Database::Open(path, &error);
}

// The entries of the full list as the main window holds them after start;
// without a screen there are no column widths to set up.
void LoadList(Session& session, EntryList& list)
{
    session.SharedRecordset = session.CollectionDb->Select(u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s);
    list.FillGrid(session);
    GetNrRange(session, u";"_s, list.LowestNr, list.HighestNr);
}

QString Lines(const QString& text) { return QString(text).replace(u"\r\n"_s, u"\n"_s); }

} // namespace

int ImportCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    ImportRequest request;
    if (!ReadRequest(words, request))
        return UsageError(err, u"import"_s);
    DbError error;
    if (!ReadConfiguration(session, &error)) {
        err << u"KONFIGURATION nicht lesbar: "_s << error.description << u'\n';
        return 1;
    }
    ReadParameters(session);
    OpenCycleDatabase(session);
    session.ActiveCaption = [] { return ImportCaption(); };

    EntryList list;
    LoadList(session, list);
    ImportObserver quiet;
    FileImport import(session, list, quiet);
    import.ImportChosenFile(QFileInfo(request.path).absoluteFilePath(), request.mode, request.withDetails);

    const ImportTexts& texts = import.Texts();
    out << u"== "_s << (texts.caption.isEmpty() ? u"Bericht"_s : texts.caption) << u" ==\n"_s
        << Lines(texts.bericht) << u"\n\n== Fehlerliste ==\n"_s << Lines(texts.fehler) << u'\n';
    return import.Refused() > 0 ? 1 : 0;
}

} // namespace heft
