#pragma once
// The program-wide state of one run: the open files, the configuration read
// from the collection, the shared SQL buffer and the entry being written.
// One Session is owned by the application and handed to whoever needs it.

#include "database.h"
#include "log.h"
#include "prompter.h"

#include <QDate>
#include <QString>

#include <functional>
#include <memory>

namespace heft {

constexpr int DefaultBackupDays = 7;

// What KONFIGURATION and Parameter say about the collection.
struct Configuration {
    QString SeriesName;
    QString ListKind;
    QString LogoFile;
    QString SplashFile;
    int MaxAuflage = 5;
    int ContentLimit = 255;
    QString PictureRoot;
    QString ArchiveRoot;
    // Days of daily backups kept beside the collection (Parameter key 5);
    // 0 makes none.
    int BackupDays = DefaultBackupDays;
};

// The entry being written; its texts are already quoted with QuoteSql.
struct EntryRecord {
    int Nr = 0;
    QString Autor;
    QString Titel;
    int Auflage = 0;
    QString Zyklus;
    bool GL = false;
    QString Bemerkung;
};

class Session {
public:
    QString DataFolder;
    std::unique_ptr<Database> CollectionDb;
    std::unique_ptr<Database> CycleDb;
    Query SharedRecordset;
    QString CurrentSql;
    EntryRecord Entry;
    bool EditMode = false;
    bool EditRetry = false;
    bool EditAccepted = false;
    int OldNr = 0;
    Configuration Config;
    // The day whose first change has been seen: the backup of the day and
    // the check of the file have been done.
    QDate BackupDay;
    Log log;
    Prompter* prompter = nullptr;
    // Caption of the active window: ExecuteSql keeps quiet under the batch
    // windows, which it recognises by their captions.
    std::function<QString()> ActiveCaption;
    // Set by the main window: removes an entry's rows from the grids.
    std::function<void(int nr)> RemoveEntryRows;

    void WriteLog(int code, const QString& text) const { log.Write(code, text, CurrentSql); }
};

} // namespace heft
