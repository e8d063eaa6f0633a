#pragma once
// One print run: the matrix of hundreds, the whole list for a number range,
// or the filter list, drawn page by page through a PrintPage. The window,
// the command line and the benchmark all run their pages through here.

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <vector>

namespace heft {

class PrintPage;
class Session;

// The output choices, in the order of cmb_liste.
enum class PrintKind { Matrix = 0, WholeList = 1, FilterList = 2 };

// The cell texts of one row of the filter list, in the grid's column order:
// Nr, Autor, Titel, Auflage, Zyklus, read mark, Bemerkung.
using ListCells = std::array<QString, 7>;

struct MatrixOptions {
    bool tonerSaving = false; // no picture and no filled bands
    bool auflage = true;      // mark the printing in a cell
    bool zustand = true;      // mark the state in a cell
    bool zustandImmer = false; // and "?" where the state is unknown
};

struct PrintRequest {
    PrintKind kind = PrintKind::Matrix;
    bool landscape = false;
    // Matrix: the numbers shown by cmb_from and cmb_to (a 1 in cmb_from
    // stands for the page that starts at 0). Whole list: the number range.
    int from = 0;
    int to = 0;
    MatrixOptions matrix;
    // Filter list: its rows, and the filter as a sentence for the footer.
    std::vector<ListCells> filterRows;
    QString filterText;
    // The highest number of the list; matrix cells above it stay empty.
    int highestNr = 0;
    // The collection's logo for the head of matrix pages.
    QImage logo;
};

// What the run tells while it works; every member may be left empty.
struct PrintFeedback {
    std::function<void(const QString&)> status;
    std::function<void(int maximum)> startProgress;
    std::function<void(int value)> progress;
    // Lets pending events run; a key press may abort the page meanwhile.
    std::function<void()> letEventsRun;
    std::function<void()> finishProgress;
};

// The document title: "{series} {kind} -Matrix-", " -Gesamtliste-" or
// " -Filterliste-".
QString PrintTitle(const Session& session, PrintKind kind);

// Draws all pages of the request. word is "vorschau" for a preview and
// "erdaten" for paper, as the status text reads ("Erzeuge Druckvorschau
// ..."). Returns the number of pages drawn; on an abort (Esc, or an empty
// number range, which is told to the user) the page is aborted.
int PrintOrPreview(Session& session, PrintPage& page, const PrintRequest& request, const QString& word,
                   const PrintFeedback& feedback);

// The collection's logo file in bm/, and the size in pixels to load it at:
// sharp enough for the head band at printer resolution.
QString PrintLogoPath(const Session& session);
inline constexpr QSize PrintLogoPixels{600, 600};

// The entries of cmb_from and cmb_to for a list whose highest number is
// given: "     1", "   100", ... and "    99", "   199", ...
QStringList MatrixFromItems(int highestNr);
QStringList MatrixToItems(int highestNr);

} // namespace heft
