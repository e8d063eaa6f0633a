#pragma once
// The file import without its window: reads a list, cycle or details file
// line by line, writes each record by the chosen mode and keeps the report
// texts the window shows. The window, heftarium-cli and the benchmark run
// this same engine; what differs between them (progress, Esc, the frozen
// list, the cycle window) comes in through an ImportObserver.

#include "importreport.h"
#include "importwriters.h"

#include <QString>

namespace heft {

class EntryList;
class Session;

// The caption of frm_import. ExecuteSql keeps quiet under it, which the
// import relies on: a refused line is reported, never asked about.
QString ImportCaption();

class ImportObserver {
public:
    virtual ~ImportObserver() = default;
    // The file is open; progress runs up to `maximum` (its size plus one).
    virtual void Started(qint64 /*maximum*/) {}
    // After each record, with the position in the file. False stops the
    // import after this record (Esc).
    virtual bool LineDone(qint64 /*position*/) { return true; }
    // A list file is being imported (true) or done (false): the full list
    // is switched off and not drawn in between.
    virtual void ListImport(bool /*running*/) {}
    // A cycle file is about to be read: the cycle window should be loaded.
    virtual void CycleFileFound() {}
    // Every import ends here, however it ended.
    virtual void Finished() {}
};

class FileImport {
public:
    FileImport(Session& session, EntryList& list, ImportObserver& observer);

    // Imports one file and leaves the reports in Texts(); the kind comes
    // from the file's first line.
    void ImportDatFile(const QString& path, ImportMode mode);
    // As the window's file choice does: the file, then for a list file and
    // withDetails its "_Details.dat" beside it, with both reports joined.
    void ImportChosenFile(const QString& path, ImportMode mode, bool withDetails);

    const ImportTexts& Texts() const { return m_texts; }
    // Records refused by the last ImportChosenFile or ImportDatFile, plus
    // one for a file that could not be imported at all.
    int Refused() const { return m_refused; }

private:
    Session& m_session;
    EntryList& m_list;
    ImportObserver& m_observer;
    ImportTexts m_texts;
    int m_refused = 0;
};

} // namespace heft
