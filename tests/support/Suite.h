#pragma once
#include <QObject>

#include <functional>
#include <memory>

/// The test classes of a room, run one after the other by one executable. With the name of a class as first
/// argument only that one runs; what follows are the arguments of Qt Test.
namespace Suite {

using Maker = std::function<std::unique_ptr<QObject>()>;
bool add(Maker maker);
/// Runs them; the application object exists. Returns the exit status.
int run();

} // namespace Suite

#define ZELVANTOR_SUITE(Class)                                                                                         \
    static const bool registered##Class = Suite::add([] { return std::make_unique<Class>(); });
