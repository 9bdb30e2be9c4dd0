#pragma once
#include "platform/SettingsStore.h"

/// Registers the data source "MS Access Database" for the user, as every start does. `systemFolder` is the
/// platform's own. Without a registry the values lie in the settings store under the application key `ODBC`.
Result registerDataSource(SettingsStore &settings, const QString &systemFolder);
