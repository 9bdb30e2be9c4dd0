#include "data/SchemaSteps.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// The first entry leads from number 0 to number 1, and so on. A step that has been delivered never changes; what
/// the schema gets anew stands in `resources/store/schema.sql`, which ends with the number, and in one more step here.
const std::vector<QStringList> &steps()
{
    static const std::vector<QStringList> all = {
        // The first stores gave the roots of both trees the parent 0, which means "below the root".
        {u"UPDATE REF_CATEGORIE_P SET idRef_parent = Null WHERE idRef_Categorie = 1 AND idRef_parent = 0"_s,
         u"UPDATE REF_LISTE SET idRef_parent = Null WHERE idRef_liste = 1 AND idRef_parent = 0"_s},
    };
    return all;
}

} // namespace

int SchemaSteps::current()
{
    return int(steps().size());
}

int SchemaSteps::of(Connection &store)
{
    Reader number = store.read(u"PRAGMA user_version"_s);
    return number.next() ? int(number.integer(0)) : -1;
}

Result SchemaSteps::carryForward(Connection &store)
{
    const int number = of(store);
    if (number < 0 || number >= current())
        return {};
    StoreAction action(store);
    if (!action.begun())
        return action.begun();
    QStringList statements;
    for (auto step = size_t(number); step < steps().size(); ++step)
        statements << steps()[step];
    statements << u"PRAGMA user_version = "_s + QString::number(current());
    for (const QString &statement : statements)
        if (Result done = store.execute(statement); !done) {
            action.abandon();
            return done;
        }
    return action.end();
}
