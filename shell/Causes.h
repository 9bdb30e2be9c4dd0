#pragma once
#include "platform/Result.h"

class Localisation;

/// Causes of failures in the language of the windows: section "RUN" of the language file. Those of the platform and of
/// the program itself are known; any other stays as it came.
namespace Causes {

QString text(const QString &cause, const Localisation &localisation);
/// The message of a failure, with its cause in that language.
QString message(const Result &failure, const Localisation &localisation);

} // namespace Causes
