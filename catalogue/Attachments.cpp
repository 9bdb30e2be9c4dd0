#include "catalogue/Attachments.h"

#include "shell/Session.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr long brokenStatement = 1; // as the store numbers a statement that it can't read

Result readPaths(Session &session, const QString &statement, QStringList &paths)
{
    Reader rows = session.gCnn.read(statement);
    while (rows.next())
        if (!rows.isNull(1))
            paths << rows.text(1);
    return rows.result();
}

Result insert(Session &session, const QString &path)
{
    const QString product = QString::number(session.glIdProduit);
    if (session.gbPhotos)
        return session.gCnn.execute(u"INSERT INTO  T_PRODUIT_IMAGE ( idProduit, sImage, iSmall) VALUES ("_s + product
                                    + u", '"_s + path + u"', "_s + QString::number(session.giSmall) + u"); "_s);
    return session.gCnn.execute(u"INSERT INTO  T_PRODUIT_DOC ( idProduit, sDoc) VALUES ("_s + product + u", '"_s + path
                                + u"'); "_s);
}

QString apostropheText(const Session &session, const QString &path)
{
    const QString text = session.localisation.Traduire(u"DLGOPEN"_s, u"8"_s);
    return (text.isEmpty() ? u"Le chemin contient une apostrophe ; renommez le fichier ou le dossier : %1"_s : text)
        .arg(path);
}

/// The stored paths with the changes of one person and those of another.
QStringList merged(QStringList opened, const QStringList &wanted, QStringList stored)
{
    QStringList added;
    for (const QString &path : wanted)
        if (!opened.removeOne(path))
            added << path;
    for (const QString &path : opened) // what is left of them was taken out
        stored.removeOne(path);
    for (const QString &path : added)
        if (!stored.contains(path))
            stored << path;
    return stored;
}

} // namespace

Result Attachments::documents(Session &session, QStringList &paths)
{
    return readPaths(session,
                     u"SELECT * from T_PRODUIT_DOC where idproduit = "_s + QString::number(session.glIdProduit), paths);
}

Result Attachments::pictures(Session &session, QStringList &paths)
{
    return readPaths(
        session, u"SELECT * from T_PRODUIT_IMAGE where idproduit = "_s + QString::number(session.glIdProduit), paths);
}

Result Attachments::AfficherDocs(Session &session, QStringList &paths)
{
    if (!session.gbPhotos)
        return documents(session, paths);
    return readPaths(session,
                     u"SELECT * from T_PRODUIT_IMAGE where idproduit = "_s + QString::number(session.glIdProduit)
                         + u" AND iSmall = "_s + QString::number(session.giSmall) + u"; "_s,
                     paths);
}

Result Attachments::SupprimerDoc(Session &session)
{
    const QString product = QString::number(session.glIdProduit);
    if (session.gbPhotos)
        return session.gCnn.execute(u"DELETE T_PRODUIT_IMAGE.* FROM T_PRODUIT_IMAGE WHERE idProduit = "_s + product
                                    + u" AND iSmall ="_s + QString::number(session.giSmall) + u" ;"_s);
    return session.gCnn.execute(u"DELETE T_PRODUIT_DOC.* FROM T_PRODUIT_DOC WHERE idProduit = "_s + product + u";"_s);
}

Result Attachments::AjouterDoc(Session &session, const QString &path)
{
    // With two of them the statement may be readable again and write another path, or do another thing.
    if (path.contains(u'\''))
        return {brokenStatement, apostropheText(session, path)};
    return insert(session, path);
}

Attachments::Failures Attachments::replace(Session &session, QStringList &opened, QStringList paths)
{
    StoreAction action(session.gCnn);
    if (!action.begun())
        return {{u"SupprimerDoc"_s, action.begun()}};
    QStringList before;
    if (const Result read = AfficherDocs(session, before); !read)
        return {{u"AfficherDocs"_s, read}};
    const QStringList wanted = paths;
    if (before != opened)
        paths = merged(opened, wanted, before);
    const bool onlyAdds = paths.mid(0, before.size()) == before; // what stays then keeps its place in the store
    if (const Result deleted = onlyAdds ? Result() : SupprimerDoc(session); !deleted)
        return {{u"SupprimerDoc"_s, deleted}}; // going on would write every path a second time
    Failures failures;
    for (const QString &path : onlyAdds ? paths.mid(before.size()) : paths) {
        const Result added = AjouterDoc(session, path);
        if (added)
            continue;
        failures.push_back({u"AjouterDoc"_s, added});
        if (!before.contains(path))
            continue;
        // It came into the store by another way, and is not lost for want of a new name.
        if (const Result kept = insert(session, QString(path).replace(u"'"_s, u"''"_s)); !kept)
            failures.push_back({u"AjouterDoc"_s, kept});
    }
    QStringList stored;
    const Result read = AfficherDocs(session, stored);
    if (const Result ended = action.end(); !ended)
        return {{u"AjouterDoc"_s, ended}};
    if (read) { // what somebody else has done stays unknown to the list, which goes on showing what it showed
        const QStringList known = opened + stored;
        opened = wanted;
        opened.removeIf([&known](const QString &path) { return !known.contains(path); });
    }
    session.gbRafraichirListe = true;
    return failures;
}

Attachments::Failures Attachments::addDroppedFiles(Session &session, const QStringList &paths)
{
    QStringList listed;
    if (const Result read = AfficherDocs(session, listed); !read)
        return {{u"AfficherDocs"_s, read}};
    QStringList missing;
    for (const QString &path : paths) {
        if (!contains(session, listed + missing, path))
            missing << path;
    }
    if (missing.isEmpty())
        return {};
    StoreAction action(session.gCnn);
    if (!action.begun())
        return {{u"AjouterDoc"_s, action.begun()}};
    Failures failures;
    for (const QString &path : missing)
        if (const Result added = AjouterDoc(session, path); !added)
            failures.push_back({u"AjouterDoc"_s, added});
    if (const Result ended = action.end(); !ended)
        return {{u"AjouterDoc"_s, ended}};
    session.gbRafraichirListe = true;
    return failures;
}

bool Attachments::contains(const Session &session, const QStringList &list, const QString &path)
{
    const auto whole = [&session](const QString &stored) { return QDir::cleanPath(session.filePath(stored)); };
    return std::any_of(list.begin(), list.end(),
                       [&, wanted = whole(path)](const QString &listed) { return whole(listed) == wanted; });
}
