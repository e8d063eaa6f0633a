#include "clipictures.h"
#include "clicommands.h"
#include "clifilterwords.h"
#include "clihelp.h"

#include "core/config.h"
#include "core/picturenames.h"
#include "core/session.h"
#include "details/archivelink.h"
#include "details/picturestore.h"
#include "filter/archivesearch.h"
#include "filter/filterrun.h"
#include "mainwin/entrylist.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// The picture and archive folders follow the collection's data folder
// (the one that holds DBs/) unless its parameters name others.
bool ReadSettings(Session& session, QTextStream& err)
{
    session.DataFolder = DataFolderOf(QFileInfo(session.CollectionDb->Path()));
    ReadParameters(session);
    DbError error;
    if (ReadConfiguration(session, &error))
        return true;
    err << u"KONFIGURATION nicht lesbar: "_s << error.description << u'\n';
    return false;
}

QString TakeOption(QStringList& words, const QString& option)
{
    const qsizetype at = words.indexOf(option);
    if (at < 0 || at + 1 >= words.size())
        return {};
    const QString value = words[at + 1];
    words.remove(at, 2);
    return value;
}

bool TakeFlag(QStringList& words, const QString& flag) { return words.removeAll(flag) > 0; }

// A message as the box would show it, one line per line.
void PrintMessages(const QList<Message>& messages, QTextStream& out)
{
    for (const Message& message : messages) {
        QString text = message.text;
        text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        out << message.title << u":\n"_s << text << u'\n';
    }
}

bool IsKind(const QString& kind) { return kind == KindWord(CoverKind) || kind == KindWord(CutawayKind) || kind == KindWord(IllustrationKind); }

// The file the viewer shows for pictureKind, or the status text.
void PrintPicture(Session& session, int nr, const QString& pictureKind, QTextStream& out)
{
    const PictureKind kind = SplitPictureKind(pictureKind);
    const PictureFound found =
        ChoosePicture(FindPictureCandidates(session.Config, MountedVolumes(), nr, kind),
                      [](const QString& path) { return QImageReader(path).canRead(); });
    switch (found.lookup) {
    case PictureLookup::Found: out << QDir::toNativeSeparators(found.path) << u'\n'; break;
    case PictureLookup::Empty: out << u"Fertig und Bereit."_s << u'\n'; break;
    case PictureLookup::Missing: out << PictureMissingText(kind.kind) << u'\n'; break;
    }
}

int AddPicture(Session& session, QStringList words, QTextStream& out, QTextStream& err)
{
    const QString kind = TakeOption(words, u"--kind"_s);
    const QString page = TakeOption(words, u"--page"_s);
    auto& prompter = static_cast<ScriptedPrompter&>(*session.prompter);
    if (TakeFlag(words, u"--overwrite"_s))
        prompter.answers << Answer::Ok;
    if (words.size() != 2 || !IsKind(kind)) {
        return UsageError(err, u"picture"_s);
    }
    const int nr = words[0].toInt();
    const DropOutcome outcome =
        DropPicture(session, nr, kind, QFileInfo(words[1]).absoluteFilePath(), [&page] { return PageFromAnswer(page); });
    PrintMessages(prompter.asked, out);
    if (outcome.target.isEmpty()) {
        out << u"Nicht übernommen: nur .bmp und .jpg, eine Innenillustration mit Seitenzahl.\n"_s;
        return 1;
    }
    return outcome.copied ? 0 : 1;
}

int ShowPictures(Session& session, QStringList words, QTextStream& out, QTextStream& err)
{
    QString kind = TakeOption(words, u"--kind"_s);
    const QString page = TakeOption(words, u"--page"_s);
    if (kind.isEmpty())
        kind = KindWord(CoverKind);
    if (words.size() != 1 || !IsKind(kind)) {
        return UsageError(err, u"picture"_s);
    }
    const int nr = words[0].toInt();
    if (kind != KindWord(IllustrationKind)) {
        PrintPicture(session, nr, kind, out);
        return 0;
    }
    // Without a page, every page the list under btn_illu offers.
    const QStringList pages = page.isEmpty() ? IllustrationPages(session.Config, nr) : QStringList{PageFromAnswer(page)};
    if (pages.isEmpty() || pages.front().isEmpty())
        out << PictureMissingText(kind) << u'\n';
    for (const QString& each : pages)
        if (!each.isEmpty())
            PrintPicture(session, nr, kind + each, out);
    return 0;
}

int ArchivePageCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    if (words.size() != 1)
        return UsageError(err, u"archive"_s);
    RecordingOpener opener;
    QStringList statuses;
    ArchiveLinkClick(session, words[0].toInt(),
                     {MountedVolumes, &opener, [&statuses](const QString& text) { statuses << text; }});
    for (const QString& path : opener.opened)
        out << QDir::toNativeSeparators(path) << u'\n';
    PrintMessages(static_cast<ScriptedPrompter&>(*session.prompter).asked, out);
    return opener.opened.isEmpty() ? 1 : 0;
}

int ArchiveSearchCommand(Session& session, QStringList words, QTextStream& out, QTextStream& err)
{
    ArchiveQuery query;
    query.word1 = TakeOption(words, u"--word"_s);
    query.word2 = TakeOption(words, u"--word2"_s);
    const QString join = TakeOption(words, u"--join"_s);
    const QString mode = TakeOption(words, u"--mode"_s);
    const QStringList joins{u"UND"_s, u"ODER"_s, u"EXOR"_s};
    const QStringList modes{u"Farbe"_s, u"Filter"_s};
    if (query.word1.isEmpty() || (!join.isEmpty() && !joins.contains(join)) ||
        (!mode.isEmpty() && !modes.contains(mode))) {
        return UsageError(err, u"archive"_s);
    }
    query.join = static_cast<ArchiveJoin>(join.isEmpty() ? 0 : joins.indexOf(join));
    query.mode = mode == u"Farbe" ? ArchiveMode::Farbe : ArchiveMode::Filter;

    FilterOutcome outcome;
    if (words.isEmpty())
        outcome.sql = u"SELECT Nr, Autor, Titel, Auflage, Zyklus, GL, Bemerkung FROM HEFTLIST ORDER BY Nr;"_s;
    else if (const int code = FilterFromWords(session, words, outcome, err))
        return code;
    EntryList list;
    if (RunFilterStatement(session, list, outcome.sql) < 1) {
        out << NothingFoundText();
        return 0;
    }
    ArchiveFilterTexts texts;
    const ArchiveSearchHooks hooks{MountedVolumes, [](int) {}, [](int) {}, [](const QString&) {},
                                   [] { return false; }};
    if (SearchArchive(session, list, query, hooks, texts) < 1) {
        auto& prompter = static_cast<ScriptedPrompter&>(*session.prompter);
        prompter.Tell(u"Keine Stichwörter im VN Archiv gefunden"_s,
                      u"Zu den gegebenen Filter-Kriterien konnten\rkeine Einträge im Archiv gefunden werden."_s,
                      MessageIcon::Information);
        PrintMessages(prompter.asked, out);
        return 0;
    }
    out << outcome.text << texts.text << u'\n';
    const EntryGridModel& model = list.Filter.Model();
    for (int row = 0; row < model.rowCount(); ++row)
        if (query.mode == ArchiveMode::Filter || model.IsHitMarked(row))
            out << model.Text(row, ColNr) << u'\n';
    return 0;
}

} // namespace

int PictureCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    if (!ReadSettings(session, err))
        return 1;
    if (words.value(0) == u"add")
        return AddPicture(session, words.mid(1), out, err);
    return ShowPictures(session, words, out, err);
}

int ArchiveCommand(Session& session, const QStringList& words, QTextStream& out, QTextStream& err)
{
    if (!ReadSettings(session, err))
        return 1;
    if (words.value(0) == u"page")
        return ArchivePageCommand(session, words.mid(1), out, err);
    if (words.value(0) == u"search")
        return ArchiveSearchCommand(session, words.mid(1), out, err);
    return UsageError(err, u"archive"_s);
}

} // namespace heft
