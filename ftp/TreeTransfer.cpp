#include "ftp/TreeTransfer.h"

#include "ftp/RemoteListing.h"

#include <QDir>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int deepest = 64; ///< a server can list folders without end

/// For its lifetime the events of single files become those of a tree with one running count, and the session comes
/// back to its folder and its way of storing.
class TreeRun {
public:
    TreeRun(FtpSession &ftp, int fileOperation, int treeOperation)
        : session(ftp), m_directory(ftp.CurrentDirectory()), m_outer(std::move(ftp.onProgress)),
          m_storeMode(std::exchange(ftp.StoreMode, FtpSession::Replace))
    {
        session.onProgress = [this, fileOperation, treeOperation](FtpProgress event) {
            if (event.operation == fileOperation) {
                event.operation = treeOperation;
                m_file = qMax(m_file, event.count);
                event.count = m_before + m_file;
            }
            if (m_outer)
                m_outer(event);
        };
    }
    ~TreeRun()
    {
        if (session.State() == FtpSession::Connected && session.CurrentDirectory() != m_directory)
            note(session.setCurrentDirectory(m_directory));
        session.onProgress = std::move(m_outer);
        session.StoreMode = m_storeMode;
    }
    TreeRun(const TreeRun &) = delete;
    TreeRun &operator=(const TreeRun &) = delete;

    /// Keeps the first failure, or the one that ended the tree. True while the tree can go on.
    bool note(const Result &result)
    {
        m_before += std::exchange(m_file, 0);
        if (!result && (m_first || isOver(result)))
            m_first = result;
        return !isOver(result);
    }
    bool isOver(const Result &result) const
    {
        return session.State() != FtpSession::Connected || result.number() == FtpError::Aborted
               || result.number() == FtpError::DiskFull;
    }
    const Result &first() const { return m_first; }

    FtpSession &session;

private:
    QString m_directory;
    std::function<void(const FtpProgress &)> m_outer;
    int m_storeMode;
    qint64 m_before = 0;
    qint64 m_file = 0;
    Result m_first;
};

/// The folder of a pattern: without quotes, without the separator and the star.
QString folderOf(QString pattern, QChar separator)
{
    if (pattern.size() >= 2 && pattern.startsWith(u'"') && pattern.endsWith(u'"'))
        pattern = pattern.mid(1, pattern.size() - 2);
    if (pattern.endsWith(u'*'))
        pattern.chop(1);
    if (pattern.size() > 1 && pattern.endsWith(separator))
        pattern.chop(1);
    return pattern;
}

QString below(const QString &folder, const QString &name)
{
    return folder + (folder.endsWith(u'/') ? u""_s : u"/"_s) + name;
}

bool retrieveFolder(TreeRun &run, const QString &remote, const QString &local, int depth);

bool retrieveEntry(TreeRun &run, const RemoteListing::Entry &entry, const QString &remote, const QString &local,
                   int depth)
{
    if (!TreeTransfer::isPlainName(entry.Name))
        return run.note({FtpError::BadName, u"A name that can't be kept here: "_s + entry.Name});
    const QString from = below(remote, entry.Name);
    const QString to = below(local, entry.Name);
    if (entry.Type == u"d"_s)
        return retrieveFolder(run, from, to, depth + 1);
    const Result retrieved = run.session.Retrieve(from, to);
    // A link that can't be retrieved leads to a folder, or nowhere.
    const bool isPassedOver = entry.Type == u"L"_s && retrieved.number() >= 500 && retrieved.number() < 600;
    return run.note(isPassedOver ? Result() : retrieved);
}

bool retrieveFolder(TreeRun &run, const QString &remote, const QString &local, int depth)
{
    if (depth > deepest)
        return run.note({FtpError::BadName, u"Folders too deep: "_s + remote});
    if (!QDir().mkpath(local))
        return run.note({FtpError::LocalFile, u"This folder can't be made: "_s + local});
    if (const Result entered = run.session.setCurrentDirectory(remote); !entered)
        return run.note(entered);
    QString text;
    if (const Result listed = run.session.List(text); !listed)
        return run.note(listed);
    const RemoteListing::Listing listing = RemoteListing::parse(text);
    if (listing.Status == RemoteListing::Listing::Unknown
        && !run.note({FtpError::BadName, u"A listing that can't be read: "_s + remote}))
        return false;
    for (const RemoteListing::Entry &entry : listing.entries) {
        if (entry.Name == u"."_s || entry.Name == u".."_s)
            continue;
        if (!retrieveEntry(run, entry, remote, local, depth))
            return false;
    }
    return true;
}

bool storeFolder(TreeRun &run, const QString &local, const QString &remote, QSet<QString> above)
{
    const QFileInfo folder(local);
    if (!folder.isDir() || !folder.isReadable())
        return run.note({FtpError::LocalFile, u"This folder can't be read: "_s + local});
    // A link that leads back up would never end.
    if (above.contains(folder.canonicalFilePath()))
        return true;
    above.insert(folder.canonicalFilePath());
    if (const Result made = run.session.MakeDirectory(remote); !made) {
        if (run.isOver(made))
            return run.note(made);
        if (!run.session.setCurrentDirectory(remote))
            return run.note(made);
    }
    const auto shown = QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot;
    for (const QFileInfo &entry : QDir(local).entryInfoList(shown, QDir::Name | QDir::DirsLast)) {
        const QString to = below(remote, entry.fileName());
        const bool goesOn = entry.isDir() ? storeFolder(run, entry.filePath(), to, above)
                                          : run.note(run.session.Store(to, entry.filePath()));
        if (!goesOn)
            return false;
    }
    return true;
}

} // namespace

Result TreeTransfer::RetrieveTree(FtpSession &session, const QString &remotePattern, const QString &localFolder)
{
    TreeRun run(session, FtpOperation::Retrieve, FtpOperation::RetrieveTree);
    retrieveFolder(run, folderOf(remotePattern, u'/'), localFolder, 0);
    return run.first();
}

Result TreeTransfer::StoreTree(FtpSession &session, const QString &localPattern, const QString &remoteFolder)
{
    TreeRun run(session, FtpOperation::Store, FtpOperation::StoreTree);
    storeFolder(run, folderOf(localPattern, QDir::separator()), remoteFolder, {});
    return run.first();
}

bool TreeTransfer::isPlainName(const QString &name)
{
    static const QRegularExpression device(u"^(CON|PRN|AUX|NUL|COM\\d|LPT\\d)(\\..*)?$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression outside(u"[/\\\\\\x{00}-\\x{1f}\\x{7f}]|^[A-Za-z]:"_s);
    return !name.isEmpty() && name != u"."_s && name != u".."_s && !outside.match(name).hasMatch()
           && !device.match(name).hasMatch();
}
