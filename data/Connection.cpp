#include "data/Connection.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The path stands between its name and the password, and may hold a ";" itself.
QString pathOf(const QString &connectionText)
{
    const QString name = u"DBQ="_s;
    const qsizetype start = connectionText.indexOf(name);
    if (start < 0)
        return {};
    const qsizetype end = connectionText.lastIndexOf(u";PWD="_s);
    return connectionText.mid(start + name.size(), end < start ? -1 : end - start - name.size());
}

Result notOpen()
{
    return {3709, u"The connection is not open."_s};
}

} // namespace

QString connectionText(const QString &gsDbPath)
{
    return u"DSN=MS Access Database;DBQ="_s + gsDbPath + u";PWD=731526;UID=Admin;"_s;
}

Result Connection::open(const QString &connectionText)
{
    m_path = pathOf(connectionText);
    Result result;
    m_store = Store::open(m_path, result);
    return result;
}

Result Connection::execute(const QString &statement)
{
    if (!m_store)
        return notOpen();
    if (m_beforeChange && !m_store->isInTransaction())
        m_beforeChange();
    return m_store->execute(statement);
}

std::vector<Result> Connection::executeAll(const QStringList &statements)
{
    std::vector<Result> failures;
    for (const QString &statement : statements)
        if (Result done = execute(statement); !done)
            failures.push_back(std::move(done));
    return failures;
}

Reader Connection::read(const QString &statement, const std::vector<qint64> &values)
{
    return m_store ? m_store->read(statement, values) : Reader::failed(notOpen());
}

Result Connection::begin()
{
    if (m_store && m_beforeChange)
        m_beforeChange();
    return m_store ? m_store->begin() : notOpen();
}

Result Connection::commit()
{
    return m_store ? m_store->commit() : notOpen();
}

void Connection::rollBack()
{
    if (m_store)
        m_store->rollBack();
}

Result Connection::check()
{
    return m_store ? m_store->check() : notOpen();
}

Result Connection::copyTo(const QString &path)
{
    return m_store ? m_store->copyTo(path) : notOpen();
}

Result Connection::takeFrom(const QString &path)
{
    return m_store ? m_store->takeFrom(path) : notOpen();
}

StoreAction::StoreAction(Connection &connection)
    : m_connection(connection), m_begun(connection.begin()), m_open(bool(m_begun))
{
}

StoreAction::~StoreAction()
{
    (void)end();
}

Result StoreAction::end()
{
    return std::exchange(m_open, false) ? m_connection.commit() : Result();
}

void StoreAction::abandon()
{
    if (std::exchange(m_open, false))
        m_connection.rollBack();
}
