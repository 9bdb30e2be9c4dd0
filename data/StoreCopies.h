#pragma once
#include "platform/Result.h"

#include <QDateTime>
#include <optional>
#include <vector>

class Connection;

/// A copy of the store as it stood at a day's beginning, or at a moment.
struct StoreCopy {
    QString path;
    QDateTime taken; ///< without a time of day for the copy of a day
    bool isOfDay = false;
    qint64 bytes = 0;
};

/// The dated copies that lie beside a store: `zelvantor-2026-03-01.mdb` is how it stood before the first change of
/// that day, `zelvantor-2026-03-01-143000.mdb` how it stood before it was replaced. The last ten are kept.
class StoreCopies {
public:
    explicit StoreCopies(const QString &gsDbPath);

    /// All copies, the newest first.
    std::vector<StoreCopy> list() const;
    /// The newest copy that can be opened and has no damage.
    std::optional<StoreCopy> newestSound() const;

    /// Keeps the copy of a day, unless there is one. A copy that has damage after the writing does not stay, and no
    /// older one goes for it.
    Result keepDay(Connection &store, QDate day) const;
    /// Keeps the store as it stands, under the moment.
    Result keepMoment(Connection &store, const QDateTime &moment) const;
    /// Gives an open store the content of a copy, all of it or none, after what it held has been kept.
    Result restore(const StoreCopy &copy, Connection &store, const QDateTime &moment) const;
    /// Puts a copy in the place of a store that is damaged and not open; the damaged files are kept beside it under
    /// a name that is not that of a copy.
    Result replaceDamaged(const StoreCopy &copy, const QDateTime &moment) const;

private:
    QString pathOf(const QString &stamp) const;
    /// Where a copy is written before it bears its name.
    QString unfinished() const { return m_store + QStringLiteral(".part"); }
    Result keep(Connection &store, const QString &path) const;
    QString freePath(QDateTime moment) const;
    void dropOld(const QString &made) const;

    QString m_store;
    QString m_folder;
    QString m_base;
    QString m_suffix;
};

/// Whether what failed is the store itself: 11 damaged, 26 no store.
bool isDamage(const Result &failure);
