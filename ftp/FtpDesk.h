#pragma once
#include "ftp/FtpSettings.h"
#include "ftp/PaneRow.h"

/// A file or folder that waits for its transfer or deletion.
struct QueueItem {
    QString Name;
    QString Path; ///< source directory; the worker skips an item without one
    QString Icon;
    QString Size;
    int Index = 0; ///< position in the source pane
};

/// What the worker and the two conflict dialogues tell one another.
struct TransferVariables {
    QString sLocalDir;
    QString sLocalName;
    QString sRemoteDir;
    QString sRemoteName;
    qint64 nLocalSize = 0;
    qint64 nRemoteSize = 0;
    bool bStoring = false;
    bool bOverwrite = false;
    int nApplyAll = 0;
    bool bRenamed = false;
    bool bCancel = false;
};

/// One finished item.
struct StatusRow {
    QString Status;
    QString Local;
    QString Size;
    QString Direction; ///< "-->", "<--" or empty
    QString Remote;
    QString Host;

    bool operator==(const StatusRow &) const = default;
};

/// What the rules tell and ask the window. All of it is called in the caller's thread.
class FtpView {
public:
    virtual ~FtpView() = default;

    virtual void EnableCommands(bool login, bool logout, bool options, bool actions, bool toolbar) = 0;
    virtual void EnableDirBoxes(bool local, bool remote) = 0;
    virtual void enableAbort(bool enabled) = 0;
    virtual void setCaption(const QString &text) = 0;
    virtual void clearLog() = 0;
    virtual void AppendLog(const QString &text) = 0;

    /// The pane shows these rows, with nothing selected and no current row.
    virtual void showLocal(const PaneRows &rows) = 0;
    virtual void showRemote(const PaneRows &rows) = 0;
    virtual void showLocalDir(const QString &directory) = 0;  ///< text of `cmbLocalDir`
    virtual void showRemoteDir(const QString &directory) = 0; ///< text of `cmbRemoteDir`
    virtual void forgetRemoteDir(const QString &directory) = 0;
    /// A new folder's row: current, with its name being edited.
    virtual void editLocalName(int row) = 0;
    virtual void editRemoteName(int row) = 0;
    /// The row of a queued item loses its mark. Rows may have moved since.
    virtual void unmark(bool isLocalPane, const QueueItem &item) = 0;
    virtual void forgetDropTarget() = 0;

    virtual void showFileInfo(const QString &name, const QString &size) = 0; ///< both empty at the end
    virtual void showProgress(qint64 value, qint64 maximum, const QString &rate) = 0;
    virtual void AddStatusRow(const StatusRow &row) = 0;

    virtual void warn(const QString &text) = 0; ///< both boxes are titled "ZELVANTORFTP"
    virtual void inform(const QString &text) = 0;
    virtual bool confirm(const QString &text, const QString &title) = 0; ///< OK and Cancel
    /// Shows the conflict dialogue, which decides through `Conflict`.
    virtual void askConflict() = 0;
    virtual bool openFile(const QString &file) = 0;
    /// Lets the window repaint between the steps of a long local action.
    virtual void breathe() {}
};

/// The values of the one FTP window.
struct FtpDesk {
    FtpDesk(FtpSession &ftp, FtpView &window) : Ftp1(ftp), view(window) {}

    FtpSession &Ftp1;
    FtpView &view;
    FtpSettings settings;
    TransferVariables transfer;
    PaneRows remoteRows; ///< what the panes show, in their order
    PaneRows localRows;
    QString remoteDir; ///< texts of the directory boxes
    QString localDir;
    QString sHomeDir;
    QString sViewFile;
    bool bRestartSupported = false;
    bool bLost = false;
    bool bTransferring = false;
    bool isAbortable = false; ///< through all of an action, not only while bytes move
    bool isStopped = false;   ///< the person wants no more of a local action
    qint64 barValue = 0;
    qint64 barMaximum = 100;

    void SetFtpProperties();
    void EnableCommands(bool login, bool logout, bool options, bool actions, bool toolbar);
    void commandsOff() { EnableCommands(false, false, false, false, false); }
    /// The commands that a session, or its loss, leaves on.
    void commandsBack();
    void ShowFtpError(const Result &failure);
    /// Wires the session's events to log, bar and caption.
    void listen();
    void setBar(qint64 value);
    void setBarMaximum(qint64 maximum);
    void resetBar();
    void showFileInfo(const QString &name, const QString &size);

private:
    void progressed(const FtpProgress &progress);
    void stateChanged(int state);
};
