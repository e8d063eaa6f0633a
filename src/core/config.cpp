#include "config.h"

#include "session.h"
#include "textfuncs.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

// A Null value, or a column the table doesn't have, leaves the setting as it
// was, just as assigning Null to a text variable failed and was passed over.
bool HasValue(const Query& query, int column)
{
    return column < query.ColumnCount() && !query.IsNull(column);
}

void ReadText(const Query& query, int column, qsizetype length, QString& target)
{
    if (HasValue(query, column))
        target = Left(query.Text(column), length);
}

// The number goes into a byte or a 16-bit variable; one that doesn't fit
// overflowed and was passed over, so the setting keeps its value.
void ReadNumber(const QString& text, int low, int high, int& target)
{
    const double number = std::nearbyint(Val(text));
    if (number >= low && number <= high)
        target = static_cast<int>(number);
}

} // namespace

bool ReadConfiguration(Session& session, DbError* error)
{
    DbError failure;
    Query query = session.CollectionDb->Select(u"SELECT * FROM KONFIGURATION;"_s, &failure);
    if (failure) {
        if (error)
            *error = failure;
        return false;
    }
    if (query.Next()) {
        Configuration& config = session.Config;
        ReadText(query, 0, 32, config.SeriesName);
        ReadText(query, 1, 32, config.ListKind);
        ReadText(query, 2, 128, config.LogoFile);
        ReadText(query, 3, 128, config.SplashFile);
    }
    return true;
}

void ReadParameters(Session& session)
{
    Configuration& config = session.Config;
    config.MaxAuflage = 5;
    config.ContentLimit = 255;
    config.PictureRoot = session.DataFolder;
    config.ArchiveRoot = session.DataFolder;
    config.BackupDays = DefaultBackupDays;

    DbError failure;
    Query query = session.CollectionDb->Select(u"SELECT * FROM Parameter;"_s, &failure);
    if (failure)
        return;
    while (query.Next()) {
        if (!HasValue(query, 0) || !HasValue(query, 2))
            continue;
        switch (query.Int(0)) {
        case 1:
            ReadNumber(query.Text(2), 0, 255, config.MaxAuflage);
            break;
        case 2:
            ReadNumber(query.Text(2), -32768, 32767, config.ContentLimit);
            break;
        case 3:
            config.PictureRoot = query.Text(2);
            break;
        case 4:
            config.ArchiveRoot = query.Text(2);
            break;
        case 5:
            ReadNumber(query.Text(2), 0, 366, config.BackupDays);
            break;
        default:
            break;
        }
    }
}

} // namespace heft
