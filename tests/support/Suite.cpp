#include "tests/support/Suite.h"

#include <QCoreApplication>
#include <QTest>

#include <vector>

namespace {

std::vector<Suite::Maker> &makers()
{
    static std::vector<Suite::Maker> list;
    return list;
}

} // namespace

bool Suite::add(Maker maker)
{
    makers().push_back(std::move(maker));
    return true;
}

int Suite::run()
{
    QStringList arguments = QCoreApplication::arguments();
    QByteArray only;
    if (arguments.size() > 1 && !arguments[1].startsWith(u'-'))
        only = arguments.takeAt(1).toUtf8();
    int failed = 0;
    int run = 0;
    for (const Suite::Maker &make : makers()) {
        const std::unique_ptr<QObject> test = make();
        if (!only.isEmpty() && only != test->metaObject()->className())
            continue;
        ++run;
        failed += QTest::qExec(test.get(), arguments);
    }
    return run > 0 && failed == 0 ? 0 : 1;
}
