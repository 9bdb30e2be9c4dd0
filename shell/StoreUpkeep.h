#pragma once
#include "platform/Result.h"

struct Session;

/// What the program does for the store without being asked.
namespace StoreUpkeep {

/// From now on the session's connection keeps the dated copy before the first change of each day. One that could
/// not be kept is told once a day, and the change goes on.
void keepDailyCopies(Session &session);
/// What is wrong with the store at the session's path, 11 or 26; success for a store that has no damage.
Result damageOf(Session &session);
/// Offers to put the newest sound copy in the place of a damaged store, and does so; true when it stands there.
/// Without a sound copy it tells of the damage. The session's connection is closed when the store is replaced.
bool offerSoundCopy(Session &session, const Result &damage);
/// Carries a store of an older version forward. False for a store of a newer one, which has been told.
bool carryForward(Session &session);

} // namespace StoreUpkeep
