#include "data/StoreCopies.h"

#include "data/Connection.h"
#include "data/SchemaSteps.h"
#include "platform/Store.h"
#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t keptCopies = 10;
const QString dayForm = u"yyyy-MM-dd"_s;
const QString momentForm = u"yyyy-MM-dd-HHmmss"_s;

/// The library's own files beside a store, with the store itself first.
const QStringList storeFiles = {QString(), u"-wal"_s, u"-shm"_s};

Result rename(const QString &from, const QString &to)
{
    QFile file(from);
    return file.rename(to) ? Result() : Result(1, from + u": "_s + file.errorString());
}

/// Whether a copy is sound, and a store of this program that this version can carry on with.
Result checkCopy(const QString &path)
{
    Result result;
    const auto store = Store::openStill(path, result);
    if (!store)
        return result;
    if (result = store->check(); !result)
        return result;
    Reader products = store->read(u"SELECT Count(*) FROM T_PRODUIT"_s);
    Reader number = store->read(u"PRAGMA user_version"_s);
    if (products.next() && number.next() && number.integer(0) > SchemaSteps::current())
        return {1, u"written by a newer version"_s};
    return products.result();
}

} // namespace

bool isDamage(const Result &failure)
{
    return failure.number() == 11 || failure.number() == 26;
}

StoreCopies::StoreCopies(const QString &gsDbPath)
    : m_store(gsDbPath), m_folder(QFileInfo(gsDbPath).absolutePath()), m_base(QFileInfo(gsDbPath).completeBaseName()),
      m_suffix(QFileInfo(gsDbPath).suffix())
{
}

QString StoreCopies::pathOf(const QString &stamp) const
{
    return m_folder + u'/' + m_base + u'-' + stamp + u'.' + m_suffix;
}

std::vector<StoreCopy> StoreCopies::list() const
{
    std::vector<StoreCopy> copies;
    for (const QFileInfo &file : QDir(m_folder).entryInfoList(QDir::Files)) {
        const QString stamp = file.completeBaseName().mid(m_base.size() + 1);
        if (file.fileName() != QFileInfo(pathOf(stamp)).fileName())
            continue;
        const QDate day = QDate::fromString(stamp, dayForm);
        const QDateTime taken = day.isValid() ? day.startOfDay() : QDateTime::fromString(stamp, momentForm);
        if (taken.isValid())
            copies.push_back({file.absoluteFilePath(), taken, day.isValid(), file.size()});
    }
    std::sort(copies.begin(), copies.end(), [](const auto &a, const auto &b) { return a.taken > b.taken; });
    return copies;
}

std::optional<StoreCopy> StoreCopies::newestSound() const
{
    for (const StoreCopy &copy : list())
        if (checkCopy(copy.path))
            return copy;
    return {};
}

Result StoreCopies::keepDay(Connection &store, QDate day) const
{
    const QString path = pathOf(day.toString(dayForm));
    if (QFileInfo::exists(path))
        return {};
    Result kept = keep(store, path);
    if (kept)
        dropOld(path);
    return kept;
}

Result StoreCopies::keepMoment(Connection &store, const QDateTime &moment) const
{
    const QString path = freePath(moment);
    Result kept = keep(store, path);
    if (kept)
        dropOld(path);
    return kept;
}

/// Two in one second get two names.
QString StoreCopies::freePath(QDateTime moment) const
{
    while (QFileInfo::exists(pathOf(moment.toString(momentForm))))
        moment = moment.addSecs(1);
    return pathOf(moment.toString(momentForm));
}

Result StoreCopies::keep(Connection &store, const QString &path) const
{
    QFile::remove(unfinished());
    Result done = store.copyTo(unfinished());
    if (done)
        done = checkCopy(unfinished());
    if (done)
        done = rename(unfinished(), path);
    if (!done)
        QFile::remove(unfinished());
    return done;
}

/// The one just made stays, wherever the clock of the machine puts it among the others.
void StoreCopies::dropOld(const QString &made) const
{
    size_t kept = 1;
    for (const StoreCopy &copy : list())
        if (copy.path != made && ++kept > keptCopies)
            QFile::remove(copy.path);
}

/// The copy that is wanted may be the oldest one, so that none goes before it has been taken.
Result StoreCopies::restore(const StoreCopy &copy, Connection &store, const QDateTime &moment) const
{
    if (Result sound = checkCopy(copy.path); !sound)
        return sound;
    const QString present = freePath(moment);
    Result done = keep(store, present);
    if (done)
        done = store.takeFrom(copy.path);
    dropOld(present);
    return done;
}

/// The copy is written whole before the damaged files give way.
Result StoreCopies::replaceDamaged(const StoreCopy &copy, const QDateTime &moment) const
{
    QFile source(copy.path);
    if (!source.open(QIODevice::ReadOnly))
        return {1, copy.path + u": "_s + source.errorString()};
    if (Result written = WholeFile::replace(unfinished(), source.readAll()); !written)
        return written;
    const QString damaged = m_folder + u'/' + m_base + u"-damaged-"_s + moment.toString(momentForm) + u'.' + m_suffix;
    for (const QString &ending : storeFiles)
        if (QFileInfo::exists(m_store + ending))
            if (Result moved = rename(m_store + ending, damaged + ending); !moved)
                return moved;
    return rename(unfinished(), m_store);
}
