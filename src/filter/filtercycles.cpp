#include "filtercycles.h"

#include "core/database.h"
#include "core/roman.h"
#include "core/textfuncs.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

constexpr int Kleiner = 2;
constexpr int Grosser = 3;

const CycleRange NoCycle{u"="_s, u"'-0'"_s};

// "='first' OR h.Zyklus='second' ..." over rows first..last.
QString CycleAlternatives(const CycleList& cycles, qsizetype first, qsizetype last)
{
    QString right = u"='"_s + cycles[static_cast<size_t>(first)].second + u"'"_s;
    for (qsizetype r = first + 1; r <= last; ++r)
        right += u" OR h.Zyklus='"_s + cycles[static_cast<size_t>(r)].second + u"'"_s;
    return right;
}

} // namespace

CycleList ReadCycleList(Database& db)
{
    CycleList cycles;
    Query query = db.Select(u"SELECT DISTINCT Zyklus FROM HEFTLIST;"_s);
    while (query.Next()) {
        const QString text = query.Text(0);
        if (const int number = RomanToNumber(text); number != 0)
            cycles.emplace_back(number, text);
    }
    std::stable_sort(cycles.begin(), cycles.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    return cycles;
}

bool NormaliseCycleText(QString& text)
{
    text = text.toUpper();
    if (IsRomanText(text) || text == u"- - -")
        return true;
    text = NumberToRoman(static_cast<int>(Val(text)));
    if (text.isEmpty())
        text = u"- - -"_s;
    return IsRomanText(text);
}

int FindCyclePosition(const CycleList& cycles, int value, int compare)
{
    if (cycles.size() == 1) {
        const int number = cycles.front().first;
        const bool passes = compare == Kleiner ? number < value : number <= value;
        return passes ? -1 : 0;
    }
    const auto found = std::find_if(cycles.begin(), cycles.end(),
                                    [value](const auto& cycle) { return cycle.first >= value; });
    return found == cycles.end() ? -1 : static_cast<int>(found - cycles.begin());
}

CycleRange CyclesBeyond(const CycleList& cycles, int value, bool smaller)
{
    if (cycles.empty())
        return NoCycle;
    const qsizetype count = static_cast<qsizetype>(cycles.size());
    int pos = FindCyclePosition(cycles, value, smaller ? Kleiner : Grosser);
    if (smaller) {
        if (pos == 0)
            return NoCycle;
        if (pos == -1)
            pos = static_cast<int>(count);
        return {QString(), CycleAlternatives(cycles, 0, pos - 1)};
    }
    if (pos == -1 || (pos == count - 1 && count > 1))
        return NoCycle;
    const qsizetype start = value == 0 || count == 1 ? 0 : pos + 1;
    return {QString(), CycleAlternatives(cycles, start, count - 1)};
}

} // namespace heft
