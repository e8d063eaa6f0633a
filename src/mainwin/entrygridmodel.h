#pragma once
// The cell texts of an entry grid. The grid is a filled copy of HEFTLIST and
// the program works on its texts (the editor reads them back, the sort and
// the number search walk them), so the model holds plain texts, the read mark
// included, and nothing else of the database.

#include <QAbstractTableModel>
#include <QSet>
#include <QString>

#include <array>
#include <vector>

namespace heft {

enum EntryColumn : int {
    ColNr = 0,
    ColAutor,
    ColTitel,
    ColAuflage,
    ColZyklus,
    ColGelesen,
    ColBemerkung,
    EntryColumnCount
};

using EntryCells = std::array<QString, EntryColumnCount>;

// The grid's sort modes as the routines number them.
enum SortMode : int {
    SortGenericAscending = 1,
    SortGenericDescending = 2,
    SortNumericAscending = 3,
    SortNumericDescending = 4,
};

enum class SortPicture { None, Up, Down };

// The text of column 5 for an entry that has been read.
inline const QString& ReadMarkText()
{
    static const QString mark(QChar(0x00FC));
    return mark;
}

class EntryGridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // Header role: the side of the header cell that carries the sort picture.
    static constexpr int PictureAlignmentRole = Qt::UserRole + 1;

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    static QString HeaderText(int column);

    // Rows here count from 0; the grid routines count the header as row 0.
    const QString& Text(int row, int column) const { return m_rows[static_cast<size_t>(row)][static_cast<size_t>(column)]; }
    void SetText(int row, int column, const QString& text);
    void SetRowCells(int row, EntryCells cells);
    // Replaces all rows in one reset.
    void Reset(std::vector<EntryCells> rows);
    void AppendRow();
    void RemoveRow(int row);
    // The first row whose column 0 reads as nr, or -1.
    int FindNr(int nr) const;
    // Stable sort of all rows by one column; the marks of the header are
    // left alone.
    void Sort(int column, SortMode mode);

    // The archive search colours the number cell of a hit green; the mark
    // stays with the entry through sorting and goes with the next reset.
    void MarkHit(int row);
    bool IsHitMarked(int row) const;

    void SetHeaderMark(int column, bool bold, SortPicture picture);
    bool HeaderBold(int column) const { return m_marks[static_cast<size_t>(column)].bold; }
    SortPicture HeaderPicture(int column) const { return m_marks[static_cast<size_t>(column)].picture; }

private:
    struct HeaderMark {
        bool bold = false;
        SortPicture picture = SortPicture::None;
    };
    std::vector<EntryCells> m_rows;
    QSet<QString> m_hitNrs;
    std::array<HeaderMark, EntryColumnCount> m_marks{};
};

} // namespace heft
