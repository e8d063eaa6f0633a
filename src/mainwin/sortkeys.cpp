#include "sortkeys.h"

#include "core/textfuncs.h"

#include <QCollator>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <numeric>

namespace heft {

double CellNumber(const QString& text)
{
    // Nearly every cell is a plain whole number; Val is the fallback that
    // keeps the reading of anything else.
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok ? value : Val(text);
}

std::vector<double> NumericSortKeys(const std::vector<EntryCells>& rows, int column)
{
    std::vector<double> keys;
    keys.reserve(rows.size());
    for (const EntryCells& cells : rows)
        keys.push_back(CellNumber(cells[static_cast<size_t>(column)]));
    return keys;
}

std::vector<double> CollationSortKeys(const std::vector<EntryCells>& rows, int column)
{
    // Authors, cycles and marks repeat a lot: collate each distinct text once
    // and give the rows the rank of their text.
    QHash<QString, int> distinctIndex;
    std::vector<const QString*> distinct;
    std::vector<int> textOfRow;
    textOfRow.reserve(rows.size());
    for (const EntryCells& cells : rows) {
        const QString& text = cells[static_cast<size_t>(column)];
        auto it = distinctIndex.constFind(text);
        if (it == distinctIndex.constEnd()) {
            it = distinctIndex.insert(text, static_cast<int>(distinct.size()));
            distinct.push_back(&text);
        }
        textOfRow.push_back(it.value());
    }

    QCollator collator(QLocale(QLocale::German, QLocale::Germany));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    std::vector<QCollatorSortKey> collationKeys;
    collationKeys.reserve(distinct.size());
    for (const QString* text : distinct)
        collationKeys.push_back(collator.sortKey(*text));

    std::vector<int> order(distinct.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&](int a, int b) { return collationKeys[static_cast<size_t>(a)].compare(collationKeys[static_cast<size_t>(b)]) < 0; });
    std::vector<double> rankOfText(distinct.size());
    int rank = 0;
    for (size_t i = 0; i < order.size(); ++i) {
        if (i > 0 && collationKeys[static_cast<size_t>(order[i - 1])].compare(collationKeys[static_cast<size_t>(order[i])]) != 0)
            ++rank;
        rankOfText[static_cast<size_t>(order[i])] = rank;
    }

    std::vector<double> keys;
    keys.reserve(rows.size());
    for (const int text : textOfRow)
        keys.push_back(rankOfText[static_cast<size_t>(text)]);
    return keys;
}

} // namespace heft
