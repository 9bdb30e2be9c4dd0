#pragma once
#include "tests/support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <initializer_list>
#include <memory>
#include <tuple>

/// The test classes of a room, run one after the other by one executable. With the name of a class as first
/// argument only that one runs; what follows are the arguments of Qt Test.
namespace Suite {

using Maker = std::function<std::unique_ptr<QObject>()>;
bool add(Maker maker);
/// Runs them; the application object exists. Returns the exit status.
int run();

} // namespace Suite

/// The cases of one test: a name and the values of each.
template <typename... Column>
using Rows = std::initializer_list<std::tuple<const char *, Column...>>;

/// Says with a failure which of the rows it was.
class Row {
public:
    explicit Row(const char *name) : m_name(name) {}
    ~Row()
    {
        if (QTest::currentTestFailed())
            qWarning("in the row \"%s\"", m_name);
    }
    Q_DISABLE_COPY_MOVE(Row)

private:
    const char *m_name;
};

#define ZELVANTOR_SUITE(Class)                                                                                         \
    static const bool registered##Class = Suite::add([] { return std::make_unique<Class>(); });
