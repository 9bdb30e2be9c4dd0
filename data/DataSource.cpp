#include "data/DataSource.h"

#include <utility>

using namespace Qt::StringLiterals;

Result registerDataSource(SettingsStore &settings, const QString &systemFolder)
{
    const QString name = u"MS Access Database"_s;
    const QString application = u"ODBC"_s;
    // No path of the store: that travels in the connection text.
    const std::pair<QString, QString> values[] = {
        {u"Driver"_s, systemFolder + u"\\odbcjt32.dll"_s},
        {u"DriverID"_s, u"25"_s},
        {u"FIL"_s, u"MS Access"_s},
        {u"SafeTransactions"_s, u"0"_s},
        {u"UID"_s, u"admin"_s},
    };
    for (const auto &[value, content] : values)
        if (Result saved = settings.save(application, name, value, content); !saved)
            return saved;
    return settings.save(application, u"ODBC Data Sources"_s, name, u"MIcrosoft Access Driver (*.mdb)"_s);
}
