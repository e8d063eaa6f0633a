#pragma once
// The readers of the three record kinds. Each is fed the lines of one file in
// order and keeps its record from line to line: a field that a line lacks
// keeps the value of the line before, which the import relies on.

#include "datformat.h"

namespace heft {

// The reader limits that come from the collection's Parameter table.
struct DatLimits {
    int MaxAuflage = 5;
    int ContentLimit = 255;
};

class ListReader {
public:
    // Roman: a cycle that is no roman numeral reads as "- - -", as the
    // import takes it. UpperCaseOnly: the cycle is only made upper case, as
    // the text and HTML exports show it.
    enum class CycleCheck { Roman, UpperCaseOnly };

    explicit ListReader(DatLimits limits = {}, CycleCheck cycleCheck = CycleCheck::Roman)
        : m_limits(limits), m_cycleCheck(cycleCheck)
    {
    }
    const ListRecord& Read(const QString& line);

private:
    DatLimits m_limits;
    CycleCheck m_cycleCheck;
    ListRecord m_record;
};

class CycleReader {
public:
    const CycleRecord& Read(const QString& line);

private:
    CycleRecord m_record;
};

class DetailsReader {
public:
    explicit DetailsReader(DatLimits limits = {}) : m_limits(limits) {}
    const DetailsRecord& Read(const QString& line);

private:
    DatLimits m_limits;
    DetailsRecord m_record;
};

} // namespace heft
