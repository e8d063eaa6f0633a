#include "attributecatalog.h"

#include "core/jetfunctions.h"
#include "core/textfuncs.h"

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// Numbers are stored right-aligned in this many places, so that a text sort
// of StatusWert is a numeric sort.
constexpr int NumberPlaces = 7;
const QString DateFormat = u"yyyy-MM-dd"_s;
// The lending date stays within what the original data could hold.
const QDate EarliestLending(1901, 1, 1);
const QDate LatestLending(2029, 12, 31);

const std::array<StatusAttribute, StatusAttributeCount>& Catalog()
{
    using K = StatusKind;
    using E = StatusEditor;
    static const std::array<StatusAttribute, StatusAttributeCount> catalog{{
        {1, u"Letzte Änderung"_s, K::Stamp, E::None, 0, {}},
        {2, u"Anzahl Exemplare"_s, K::WholeNumber, E::TextBox, 5, u"Exemplare"_s},
        {3, u"Zustand"_s, K::Text, E::ComboBox, 0, u"Zustand"_s},
        {4, u"Verkäufer"_s, K::Text, E::TextBox, 128, u"Verkäufer"_s},
        {5, u"Kaufpreis [€]"_s, K::DecimalNumber, E::TextBox, 7, u"Preis"_s},
        {6, u"Wert [€]"_s, K::DecimalNumber, E::TextBox, 7, u"Wert"_s},
        {7, u"Lagerort"_s, K::Text, E::ComboBox, 0, u"Lagerort"_s},
        {8, u"ISBN"_s, K::Text, E::TextBox, 128, {}},
        {9, u"Verlag"_s, K::Text, E::ComboBox, 0, u"Verlag"_s},
        {10, u"Anzahl Seiten"_s, K::WholeNumber, E::TextBox, 5, u"Seitenzahl"_s},
        {11, u"Format"_s, K::Text, E::ComboBox, 0, u"Format"_s},
        {12, u"Coverausführung"_s, K::Text, E::ComboBox, 0, u"Coverart"_s},
        {13, u"Genre"_s, K::Text, E::ComboBox, 0, u"Genre"_s},
        {14, u"Sprache"_s, K::Text, E::ComboBox, 0, u"Sprache"_s},
        {15, u"Übersetzer"_s, K::Text, E::ComboBox, 0, u"Übersetzer"_s},
        {16, u"Originaltitel"_s, K::Text, E::TextBox, 128, {}},
        {17, u"Verliehen an"_s, K::Text, E::ComboBox, 0, {}},
        {18, u"Verleihdatum"_s, K::Date, E::TextBox, 128, {}},
        {19, u"Kritik"_s, K::Text, E::TextBox, 128, {}},
    }};
    return catalog;
}

// A number's text as the list shows it: no grouping, and a point as the
// decimal separator whatever the locale says.
QString NumberText(double value)
{
    return QString::number(value, 'g', 15);
}

std::optional<QDate> ReadDate(const QString& text)
{
    const auto days = JetDateValue(text);
    if (!days)
        return std::nullopt;
    return QDate(1899, 12, 30).addDays(*days);
}

QString TrimmedValue(const QString& text)
{
    return Left(Trim(text), StatusValueLength);
}

} // namespace

std::span<const StatusAttribute> StatusCatalog()
{
    return Catalog();
}

const StatusAttribute& StatusAttributeOf(int enumber)
{
    Q_ASSERT(enumber >= 1 && enumber <= StatusAttributeCount);
    return Catalog()[static_cast<size_t>(enumber - 1)];
}

bool IsNumericStatus(int enumber)
{
    const StatusKind kind = StatusAttributeOf(enumber).kind;
    return kind == StatusKind::WholeNumber || kind == StatusKind::DecimalNumber;
}

bool AcceptsStatusKey(int enumber, const QString& typed)
{
    if (typed.isEmpty() || !typed.front().isPrint())
        return true;
    const StatusKind kind = StatusAttributeOf(enumber).kind;
    if (kind != StatusKind::WholeNumber && kind != StatusKind::DecimalNumber)
        return true;
    const QChar c = typed.front();
    // The comma never passes: the stored form knows only the point.
    return (c >= u'0' && c <= u'9') || (kind == StatusKind::DecimalNumber && c == u'.');
}

QString StoredStatusValue(int enumber, const QString& shown)
{
    QString value = TrimmedValue(shown);
    if (value.isEmpty())
        return value;
    if (IsNumericStatus(enumber)) {
        value.replace(u',', u'.');
        return Right(QString(NumberPlaces, u'0') + value, NumberPlaces);
    }
    if (enumber == LendingDateENum) {
        if (const auto date = ReadDate(value))
            return date->toString(DateFormat);
    }
    return value;
}

QString DisplayStatusValue(int enumber, const QString& stored)
{
    if (stored.isEmpty() || !IsNumericStatus(enumber))
        return stored;
    // Older files and imports may hold a comma; it means the decimal point.
    return NumberText(Val(QString(stored).replace(u',', u'.')));
}

StatusCheck ValidateStatusValue(int enumber, const QString& text, const QDate& today)
{
    StatusCheck check{false, TrimmedValue(text)};
    if (check.value.isEmpty())
        return check;
    if (IsNumericStatus(enumber)) {
        // A pasted "3,5" is read as the German number format reads it.
        if (IsNumeric(check.value))
            check.value = NumberText(Val(check.value.replace(u',', u'.')));
        else
            check.refused = true;
    } else if (enumber == LendingDateENum) {
        const auto date = ReadDate(check.value);
        // Anything that is no date silently becomes today: the lending date
        // is mostly entered on the day of lending.
        check.value = date ? std::clamp(*date, EarliestLending, LatestLending).toString(DateFormat)
                           : today.toString(DateFormat);
    }
    return check;
}

} // namespace heft
