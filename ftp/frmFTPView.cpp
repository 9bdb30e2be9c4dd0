// What the rules of the session show in the window, and the ways from one pane to the other.
#include "ftp/frmFTP.h"

#include "ftp/frmTransfer.h"
#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "shell/Causes.h"
#include "ui_frmFTP.h"

#include <QApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace {

bool isOpenedFolder(const QString &icon)
{
    return icon == u"FolderClose"_s || icon == u"FolderLink"_s;
}

} // namespace

void frmFTP::queue(FtpPane &pane)
{
    const std::vector<int> rows = pane.selectedRows();
    if (&pane == m_ui->lvwLocal)
        m_queue.QueueLocalSelection(m_desk.localDir, rows);
    else
        m_queue.QueueRemoteSelection(m_desk.remoteDir, rows);
    for (const int row : rows)
        pane.mark(row, true);
}

void frmFTP::openLocal(int row)
{
    if (!Panes::at(m_desk.localRows, row) || enterLocal(row) || !isConnected())
        return;
    queue(*m_ui->lvwLocal);
    m_queue.StoreQueue(m_desk.remoteDir);
    addToHistory(*m_ui->cmbLocalDir, m_desk.localDir);
}

void frmFTP::openRemote(int row)
{
    if (!isConnected() || !Panes::at(m_desk.remoteRows, row) || enterRemote(row))
        return;
    queue(*m_ui->lvwRemote);
    m_queue.RetrieveQueue(m_desk.localDir);
    addToHistory(*m_ui->cmbRemoteDir, m_desk.remoteDir);
}

bool frmFTP::enterLocal(int row)
{
    const PaneRow *chosen = Panes::at(m_desk.localRows, row);
    if (chosen && chosen->icon == u"Cdup"_s)
        m_local.LocalCdup();
    else if (chosen && isOpenedFolder(chosen->icon))
        m_local.DoLocalRefresh(QString(chosen->tag));
    else
        return false;
    addToHistory(*m_ui->cmbLocalDir, m_desk.localDir);
    return true;
}

bool frmFTP::enterRemote(int row)
{
    if (!isConnected() || !Panes::at(m_desk.remoteRows, row))
        return false;
    const PaneRow chosen = m_desk.remoteRows[size_t(row)];
    if (chosen.icon == u"Cdup"_s) {
        if (const Result done = m_remote.RemoteCdup(); !done)
            m_desk.ShowFtpError(done);
    } else if (isOpenedFolder(chosen.icon)) {
        m_remote.ChangeRemoteDir(chosen.icon == u"FolderLink"_s ? chosen.tag : chosen.text);
    } else if (chosen.icon == u"Link"_s) {
        m_remote.ProbeRemoteLink(row);
    } else {
        return false;
    }
    addToHistory(*m_ui->cmbRemoteDir, m_desk.remoteDir);
    return true;
}

/// Dropped on a folder the rows go into it, else into the folder of the pane.
void frmFTP::dropped(FtpPane &target, FtpPane *source)
{
    const bool store = &target == m_ui->lvwRemote;
    if (source == &target || !source) {
        m_queue.UnmarkQueue(&target == m_ui->lvwLocal);
        return;
    }
    const PaneRows &rows = store ? m_desk.remoteRows : m_desk.localRows;
    QString directory = Panes::asFolder(store ? m_desk.remoteDir : m_desk.localDir, store);
    if (const PaneRow *folder = Panes::at(rows, target.dropRow()))
        directory += folder->text;
    const QString count = QString::number(m_queue.items().size());
    const bool go = isConnected() && !m_queue.items().empty()
                    && confirm((store ? u"Store "_s : u"Retrieve "_s) + count + u" selected Files or Folders?"_s,
                               store ? u"Store..."_s : u"Retrieve..."_s);
    if (!go)
        m_queue.UnmarkQueue(store);
    else if (store)
        m_queue.StoreQueue(directory);
    else
        m_queue.RetrieveQueue(directory);
}

void frmFTP::deleteQueueRows()
{
    const QList<QTreeWidgetItem *> rows = m_ui->lvwStatus->selectedItems();
    if (!rows.isEmpty() && confirm(u"Delete queue items selected?"_s, u"Confirm Delete Queue Items"_s))
        qDeleteAll(rows);
}

void frmFTP::UpdateCommands()
{
    if (m_running > 0)
        return;
    m_focus == Focus::Remote ? UpdateRemoteCommands() : UpdateLocalCommands();
}

void frmFTP::UpdateRemoteCommands()
{
    updatePaneCommands(isConnected(), *m_ui->lvwRemote, m_desk.remoteRows);
}

void frmFTP::UpdateLocalCommands()
{
    updatePaneCommands(true, *m_ui->lvwLocal, m_desk.localRows);
}

void frmFTP::updatePaneCommands(bool paneCommands, const FtpPane &pane, const PaneRows &rows)
{
    for (QAction *action : {m_ui->mnuRefresh, m_ui->mnuMakeDirectory, m_ui->Refresh, m_ui->NewFolder, m_ui->Cdup,
                            m_ui->SelectAll, m_ui->mnuSelectAll})
        action->setEnabled(paneCommands);
    const int row = pane.currentRow();
    const bool named = row >= 0 && row < int(rows.size()) && !rows[size_t(row)].text.isEmpty();
    for (QAction *action : {m_ui->mnuRename, m_ui->mnuDelete, m_ui->RenameFile, m_ui->DeleteFiles})
        action->setEnabled(paneCommands && named);
    for (QAction *action : {m_ui->mnuView, m_ui->ViewFile})
        action->setEnabled(paneCommands && named && !Panes::isFolder(rows[size_t(row)].icon));
    if (m_focus == Focus::Status) {
        m_ui->mnuDelete->setEnabled(true);
        m_ui->DeleteFiles->setEnabled(true);
    }
}

void frmFTP::addToHistory(QComboBox &box, const QString &directory)
{
    if (directory.isEmpty())
        return;
    if (box.findText(directory, Qt::MatchExactly | Qt::MatchCaseSensitive) < 0)
        box.addItem(directory);
    showDirectory(box, directory);
}

/// The index goes along, or the box would choose the text again when it loses the focus.
void frmFTP::showDirectory(QComboBox &box, const QString &directory)
{
    box.setCurrentIndex(box.findText(directory, Qt::MatchExactly | Qt::MatchCaseSensitive));
    box.setEditText(directory);
}

void frmFTP::EnableCommands(bool login, bool logout, bool options, bool actions, bool toolbar)
{
    m_ui->mnuLogin->setEnabled(login);
    m_ui->mnuLogout->setEnabled(logout);
    m_ui->mnuOptions->setEnabled(options);
    m_ui->mnuActions->setEnabled(actions);
    for (QAction *action : {m_ui->NewFolder, m_ui->ViewFile, m_ui->DeleteFiles, m_ui->Refresh, m_ui->SelectAll,
                            m_ui->RenameFile, m_ui->Cdup})
        action->setEnabled(toolbar);
}

void frmFTP::EnableDirBoxes(bool local, bool remote)
{
    m_ui->cmbLocalDir->setEnabled(local);
    m_ui->cmbRemoteDir->setEnabled(remote);
}

void frmFTP::enableAbort(bool enabled)
{
    m_ui->cmdAbort->setEnabled(enabled);
}

void frmFTP::clearLog()
{
    m_ui->txtLog->clear();
}

void frmFTP::AppendLog(const QString &text)
{
    m_ui->txtLog->moveCursor(QTextCursor::End);
    m_ui->txtLog->insertPlainText(Causes::text(text, session().localisation).remove(u'\r'));
    m_ui->txtLog->ensureCursorVisible();
}

void frmFTP::showLocal(const PaneRows &rows)
{
    m_ui->lvwLocal->showRows(rows);
    UpdateCommands();
}

void frmFTP::showRemote(const PaneRows &rows)
{
    m_ui->lvwRemote->showRows(rows);
    UpdateCommands();
}

void frmFTP::showLocalDir(const QString &directory)
{
    showDirectory(*m_ui->cmbLocalDir, directory);
}

void frmFTP::showRemoteDir(const QString &directory)
{
    showDirectory(*m_ui->cmbRemoteDir, directory);
}

void frmFTP::forgetRemoteDir(const QString &directory)
{
    const QString folder = Panes::asFolder(directory, true);
    for (int i = m_ui->cmbRemoteDir->count() - 1; i >= 0; --i)
        if (Panes::asFolder(m_ui->cmbRemoteDir->itemText(i), true).startsWith(folder))
            m_ui->cmbRemoteDir->removeItem(i);
}

void frmFTP::editLocalName(int row)
{
    m_ui->lvwLocal->editName(row);
}

void frmFTP::editRemoteName(int row)
{
    m_ui->lvwRemote->editName(row);
}

void frmFTP::unmark(bool isLocalPane, const QueueItem &item)
{
    FtpPane &pane = isLocalPane ? *m_ui->lvwLocal : *m_ui->lvwRemote;
    if (const QTreeWidgetItem *row = pane.topLevelItem(item.Index); row && row->text(0) == item.Name) {
        pane.mark(item.Index, false);
        return;
    }
    for (QTreeWidgetItem *row : pane.findItems(item.Name, Qt::MatchExactly | Qt::MatchCaseSensitive))
        pane.mark(pane.indexOfTopLevelItem(row), false);
}

void frmFTP::forgetDropTarget()
{
    m_ui->lvwRemote->forgetDropRow();
    m_ui->lvwLocal->forgetDropRow();
}

void frmFTP::showFileInfo(const QString &name, const QString &size)
{
    m_ui->lblFileName->setText(name);
    m_ui->lblFileSize->setText(size);
}

void frmFTP::showProgress(qint64 value, qint64 maximum, const QString &rate)
{
    constexpr int steps = 1000;
    m_ui->Progress->setRange(0, steps);
    m_ui->Progress->setValue(maximum > 0 ? int(std::min<qint64>(value, maximum) * steps / maximum) : 0);
    m_ui->lblRate->setText(rate);
}

void frmFTP::AddStatusRow(const StatusRow &row)
{
    auto *item = new QTreeWidgetItem({row.Status, row.Local, row.Size, row.Direction, row.Remote, row.Host});
    m_ui->lvwStatus->addTopLevelItem(item);
    m_ui->lvwStatus->scrollToItem(item);
}

void frmFTP::warn(const QString &text)
{
    if (!m_closing)
        session().messages->warn(Causes::text(text, session().localisation), FtpSettings::application);
}

void frmFTP::inform(const QString &text)
{
    if (!m_closing)
        session().messages->box(Causes::text(text, session().localisation), FtpSettings::application);
}

bool frmFTP::confirm(const QString &text, const QString &title)
{
    return !m_closing && session().messages->confirm(text, title);
}

void frmFTP::askConflict()
{
    if (!m_closing)
        frmTransfer::ask(session(), m_desk, m_remote, this);
}

bool frmFTP::openFile(const QString &file)
{
    return session().desktop->open(file);
}

void frmFTP::breathe()
{
    QApplication::processEvents();
}
