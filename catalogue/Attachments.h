#pragma once
#include "platform/Result.h"

#include <QStringList>

#include <vector>

struct Session;

/// The pictures of one size, or the documents, of the product `glIdProduit`; `gbPhotos` and `giSmall` tell which.
/// The store keeps only the paths of their files.
namespace Attachments {

/// A failure and the method that met it, which is the title of its box.
struct Failure {
    QString method;
    Result result;
};
using Failures = std::vector<Failure>;

/// The stored paths of the kind and size at hand. What was read before a failure stays.
Result AfficherDocs(Session &session, QStringList &paths);
Result SupprimerDoc(Session &session);
/// A path with an apostrophe is refused: it would end the text that it stands in.
Result AjouterDoc(Session &session, const QString &path);

/// Stores what a person has made of the paths that were stored when the list was opened; what somebody else has added
/// or taken out meanwhile stays so. A path that fails leaves the others done and, where it was stored before, stays
/// stored; over a locked store nothing is touched. `opened` becomes what the next call needs for the same list.
Failures replace(Session &session, QStringList &opened, QStringList paths);
/// Adds files from the desktop behind the stored paths, each one once.
Failures addDroppedFiles(Session &session, const QStringList &paths);

/// Whether a list holds the file of a path, be it written as the whole path or from the folder of the store.
bool contains(const Session &session, const QStringList &list, const QString &path);

/// For the product screen: all documents of the product, and its pictures of both sizes without a mark.
Result documents(Session &session, QStringList &paths);
Result pictures(Session &session, QStringList &paths);

} // namespace Attachments
