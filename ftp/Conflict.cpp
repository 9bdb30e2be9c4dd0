#include "ftp/Conflict.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The target is still in the way: this item is passed over, the others are not.
void giveUp(FtpDesk &desk, const QString &cause)
{
    desk.view.AppendLog(cause + u"\r\n");
    desk.transfer.bCancel = true;
    desk.transfer.nApplyAll = 0;
}

bool isListed(const FtpDesk &desk, RemoteBrowser &remote, const QString &directory, const QString &name)
{
    return remote.DoRemoteRefresh(directory) && Panes::find(desk.remoteRows, name);
}

/// A listing that fails or can't be read empties the pane, and by its rows the rest of the queue is asked about.
void showAgain(FtpDesk &desk, PaneRows rows)
{
    if (desk.Ftp1.State() != FtpSession::Connected)
        return;
    desk.remoteRows = std::move(rows);
    desk.view.showRemote(desk.remoteRows);
}

} // namespace

void Conflict::opened(TransferVariables &transfer)
{
    transfer.bCancel = true;
    transfer.bRenamed = false;
    transfer.nApplyAll = 0;
}

QString Conflict::caption(const TransferVariables &transfer)
{
    return transfer.bStoring ? u"Storing File..."_s : u"Retrieving File..."_s;
}

QString Conflict::message(const TransferVariables &transfer)
{
    const auto side = [](const QString &directory, const QString &name, qint64 size) -> QString {
        return directory + name + u'(' + QString::number(size) + u')';
    };
    const QString remote = side(transfer.sRemoteDir, transfer.sRemoteName, transfer.nRemoteSize);
    const QString local = side(transfer.sLocalDir, transfer.sLocalName, transfer.nLocalSize);
    return transfer.bStoring ? u"Overwrite "_s + remote + u" with " + local
                             : u"Overwrite "_s + local + u" with " + remote;
}

bool Conflict::canResume(const TransferVariables &transfer, bool bRestartSupported)
{
    if (transfer.bStoring)
        return transfer.nRemoteSize < transfer.nLocalSize;
    return transfer.nLocalSize < transfer.nRemoteSize && bRestartSupported;
}

void Conflict::overwrite(TransferVariables &transfer)
{
    transfer.bOverwrite = true;
    transfer.bCancel = false;
    transfer.bRenamed = false;
}

void Conflict::resume(TransferVariables &transfer)
{
    transfer.bOverwrite = false;
    transfer.bCancel = false;
    transfer.bRenamed = false;
}

void Conflict::cancel(TransferVariables &transfer)
{
    transfer.bCancel = true;
    transfer.bRenamed = false;
}

void Conflict::rename(TransferVariables &transfer)
{
    transfer.bRenamed = true;
}

void Conflict::applyToAll(TransferVariables &transfer, bool ticked)
{
    transfer.nApplyAll = ticked ? 1 : 0;
}

QString Conflict::nameOfTarget(const TransferVariables &transfer)
{
    return transfer.bStoring ? transfer.sRemoteName : transfer.sLocalName;
}

bool Conflict::renameTarget(FtpDesk &desk, RemoteBrowser &remote, const QString &newName)
{
    // A copy: the refresh of the pane lets other code run.
    const TransferVariables transfer = desk.transfer;
    desk.transfer.bCancel = false;
    const QString &directory = transfer.sRemoteDir;
    PaneRows rows = desk.remoteRows;
    // An earlier item of the queue may bear the name by now.
    if (const QString &target = transfer.sRemoteName; transfer.bStoring && !isListed(desk, remote, directory, target)) {
        showAgain(desk, std::move(rows));
        giveUp(desk, u"Not in the listing: "_s + directory + target);
        return true;
    }
    // A drop on a folder's row goes where the local pane does not look.
    if (Panes::find(transfer.bStoring ? desk.remoteRows : desk.localRows, newName)
        || (!transfer.bStoring && QFileInfo::exists(transfer.sLocalDir + newName)))
        return false;
    if (transfer.bStoring) {
        rows = desk.remoteRows;
        const Result renamed = desk.Ftp1.Rename(directory + transfer.sRemoteName, directory + newName);
        if (!renamed)
            giveUp(desk, renamed.text());
        const QString &present = renamed ? newName : transfer.sRemoteName;
        if (!isListed(desk, remote, directory, present)) {
            for (PaneRow &row : rows)
                if (row.text == transfer.sRemoteName)
                    row.text = present;
            showAgain(desk, std::move(rows));
        }
    } else if (QFile target(transfer.sLocalDir + transfer.sLocalName); !target.rename(transfer.sLocalDir + newName)) {
        giveUp(desk, target.errorString() + u": "_s + newName);
    }
    return true;
}
