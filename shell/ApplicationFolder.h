#pragma once
#include "shell/Session.h"

/// The user's data folder and what is delivered beside the program.
namespace ApplicationFolder {

/// The folder of the delivered files, beside the program as built and as installed.
QString delivered();
/// The user's own folder on this platform.
QString user();
/// The sample shop within an application folder.
QString sample(const QString &applicationFolder);

/// Fills the folder at a first start and refreshes at every later one what only the program owns: the fixed
/// assets, and the layouts that it brings a new form of. A store, a language file or a text that is there is never
/// touched. The result is the first failure; the rest is tried all the same.
Result fill(const QString &deliveredFolder, const QString &applicationFolder);

/// Takes over the shop settings and texts of the sample wherever the user has none yet, so that the sample can be
/// published as it stands.
Result takeSampleSettings(Session &session);

} // namespace ApplicationFolder
