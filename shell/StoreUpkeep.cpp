#include "shell/StoreUpkeep.h"

#include "data/SchemaSteps.h"
#include "data/StoreCopies.h"
#include "platform/Messages.h"
#include "shell/Causes.h"
#include "shell/Session.h"

#include <QApplication>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"ZELVANTOR"_s;

QString text(const Session &session, const QString &key, const QString &french)
{
    return session.localisation.textOr(u"RUN"_s, key, french);
}

/// Called before every change; the day is all that it looks at, but for the first one.
class DailyCopy {
public:
    explicit DailyCopy(Session &session) : m_session(session) {}

    void operator()()
    {
        const QDate today = m_session.clock.today();
        if (m_kept == today || m_session.gCnn.isReadOnly())
            return;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const Result kept = StoreCopies(m_session.gsDbPath).keepDay(m_session.gCnn, today);
        QApplication::restoreOverrideCursor();
        if (kept)
            m_kept = today;
        else if (std::exchange(m_told, today) != today) // and tried again before the next change
            m_session.messages->box(text(m_session, u"nocopytoday"_s, u"La copie du jour n’a pas pu être gardée : %1"_s)
                                        .arg(Causes::message(kept, m_session.localisation)),
                                    title);
    }

private:
    Session &m_session;
    QDate m_kept;
    QDate m_told;
};

} // namespace

void StoreUpkeep::keepDailyCopies(Session &session)
{
    session.gCnn.setBeforeChange(DailyCopy(session));
}

Result StoreUpkeep::damageOf(Session &session)
{
    Result found;
    if (!session.gCnn.isOpen()) {
        Connection tried;
        found = tried.open(connectionText(session.gsDbPath));
    } else {
        found = session.gCnn.check();
    }
    return isDamage(found) || !QFileInfo::exists(session.gsDbPath) ? found : Result();
}

bool StoreUpkeep::offerSoundCopy(Session &session, const Result &damage)
{
    const StoreCopies copies(session.gsDbPath);
    const std::optional<StoreCopy> copy = copies.newestSound();
    const QString cause = Causes::message(damage, session.localisation);
    if (!copy && !isDamage(damage))
        return false; // a folder without a store is told by the login
    if (!copy) {
        session.messages->box(
            text(session, u"nocopy"_s, u"La base de données %1 est endommagée : %2"_s).arg(session.gsDbPath, cause),
            title);
        return false;
    }
    const QString day = copy->taken.toString(u"dd/MM/yyyy"_s);
    if (!session.messages->question(
            text(session, u"damaged"_s, u"La base de données %1 est endommagée : %2. Remettre la copie du %3 ?"_s)
                .arg(session.gsDbPath, cause, day),
            title))
        return false;
    session.gCnn = Connection();
    const Result replaced = copies.replaceDamaged(*copy, session.clock.now());
    if (!replaced)
        session.messages->box(Causes::message(replaced, session.localisation), title);
    return bool(replaced);
}

bool StoreUpkeep::carryForward(Session &session)
{
    if (SchemaSteps::of(session.gCnn) > SchemaSteps::current()) {
        session.messages->box(
            text(session, u"newer"_s, u"La base de données %1 vient d’une version plus récente du programme."_s)
                .arg(session.gsDbPath),
            title);
        return false;
    }
    if (session.gCnn.isReadOnly())
        return true;
    if (const Result carried = SchemaSteps::carryForward(session.gCnn); !carried)
        session.messages->box(Causes::message(carried, session.localisation), title);
    return true;
}
