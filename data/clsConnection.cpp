#include "data/clsConnection.h"

using namespace Qt::StringLiterals;

namespace {

const QString title = u"ZELVANTOR"_s;

/// The failure without a reason of its own, which gets one box and not two.
constexpr qint64 genericFailure = qint64(0x80004005);

} // namespace

clsConnection::clsConnection(Messages &messages, QString gsDbPath)
    : m_messages(messages), m_gsDbPath(std::move(gsDbPath))
{
}

void clsConnection::Init_connect()
{
    m_connection = Connection();
    m_bLogin = true;
    m_bErreur = false;
    m_failure = m_connection.open(connectionText(m_gsDbPath));
    if (!m_failure)
        showErrors(m_failure);
    else if (!m_connection.isOpen())
        m_messages.box(u"Connexion échouée"_s, title);
}

void clsConnection::showErrors(const Result &failure)
{
    m_bErreur = true;
    m_messages.box(QString::number(failure.number()) + u": abc "_s + failure.text(), title);
    if (failure.number() != genericFailure)
        m_messages.box(failure.message(), title);
    m_bLogin = false;
}
