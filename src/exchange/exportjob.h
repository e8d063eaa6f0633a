#pragma once
// What one export is asked to do: the rows of the active list as the grid
// shows them, the files to make and where, and how progress is reported.

#include "mainwin/entrygridmodel.h"

#include <QString>

#include <functional>
#include <vector>

namespace heft {

struct ExportOptions {
    bool csv = false;     // keep the .dat pair
    bool text = false;    // fixed-width text list
    bool html = false;    // HTML list page
    bool details = false; // with the details file, text blocks and pages
    bool gelesen = false; // with the column GL in text and HTML
    bool zyklus = false;  // keep "-" and "- - -" in text and HTML
};

// The active list: its cell texts from the top row down, and whether it is
// a filter list, with the filter as the sentence the filter window left.
struct ExportList {
    std::vector<EntryCells> rows;
    bool filtered = false;
    QString filterText;
};

// Every file is named from one folder and one base name.
struct ExportTarget {
    QString folder;
    QString baseName;

    QString Path(const QString& suffix) const;
    // The folder of the detail pages and its name relative to the list page.
    QString DetailsFolder() const;
    QString DetailsFolderName() const;
};

// How a run shows itself; any part may be left empty.
struct ExportFeedback {
    std::function<void(const QString&)> status;
    std::function<void(int maximum)> startProgress;
    // Called after each unit of work: the moment to let events run.
    std::function<void(int value)> progress;
    std::function<void()> finishProgress;

    void Status(const QString& text) const;
    void Start(int maximum) const;
    void Progress(int value) const;
    void Finish() const;
};

// Builds an output file as text, one line at a time, each ended by CR LF.
class ExportLines {
public:
    void Add(const QString& line)
    {
        m_text += line;
        m_text += QStringView(u"\r\n");
    }
    const QString& Text() const { return m_text; }
    void Clear() { m_text.clear(); }

private:
    QString m_text;
};

// Writes the text in Windows-1252 as the whole file; false if it failed.
bool WriteExportFile(const QString& path, const QString& text);
// Size of the file in bytes, -1 when there is none.
qint64 ExportFileSize(const QString& path);

} // namespace heft
