#pragma once
#include <QString>

/// The seed of everything random in the fault campaign, printed: ZELVANTOR_SEED, else one that is always the same, so
/// that a run of all tests can be repeated. The campaign names a new one each time.
inline unsigned campaignSeed()
{
    bool isGiven = false;
    const unsigned given = qEnvironmentVariable("ZELVANTOR_SEED").toUInt(&isGiven);
    const unsigned seed = isGiven ? given : 1964;
    qInfo("ZELVANTOR_SEED=%u", seed);
    return seed;
}
