#pragma once
#include "ftp/TransferQueue.h"
#include "shell/Screen.h"

#include <QMap>

#include <memory>

class FtpPane;
class QComboBox;
namespace Ui {
class frmFTP;
}

/// The FTP client: the merchant's folder beside the server's, a queue of transfers between them, their outcomes, and
/// the log of the session. Opens unconnected on the folder of the generated shop.
class frmFTP : public Screen, private FtpView {
    Q_OBJECT
public:
    /// `ftp` is the session over the network unless a test brings its own.
    frmFTP(Session &session, QWidget *parent, std::unique_ptr<FtpSession> ftp = nullptr);
    ~frmFTP() override;

    void done(int result) override;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Focus { Local, Remote, Status };

    void load();
    void wireCommands();
    void wirePanes();
    void wireDirectories();
    void chooseLocal(const QString &directory);
    void chooseRemote(const QString &directory);
    void giveTips();
    /// Runs a command unless another is running, and closes the window afterwards when that was asked meanwhile.
    void run(const std::function<void()> &command);
    bool isConnected() const { return m_desk.Ftp1.State() == FtpSession::Connected; }
    void ShowSettings(bool forLogin);
    bool decideCertificate(const FtpCertificate &certificate);

    void byFocus(const std::function<void()> &remote, const std::function<void()> &local);
    void makeFolder();
    void remove();
    void refresh();
    void rename();
    void view();
    void selectAll();
    void up();
    void openLocal(int row);
    void openRemote(int row);
    /// Go where the row leads. False for a file, which leads nowhere.
    bool enterLocal(int row);
    bool enterRemote(int row);
    void dropped(FtpPane &target, FtpPane *source);
    void deleteQueueRows();
    void queue(FtpPane &pane);
    void UpdateCommands();
    void UpdateRemoteCommands();
    void UpdateLocalCommands();
    void updatePaneCommands(bool sessionCommands, const FtpPane &pane, const PaneRows &rows);
    static void addToHistory(QComboBox &box, const QString &directory);
    static void showDirectory(QComboBox &box, const QString &directory);

    // FtpView
    void EnableCommands(bool login, bool logout, bool options, bool actions, bool toolbar) override;
    void EnableDirBoxes(bool local, bool remote) override;
    void enableAbort(bool enabled) override;
    void setCaption(const QString &text) override { setWindowTitle(text); }
    void clearLog() override;
    void AppendLog(const QString &text) override;
    void showLocal(const PaneRows &rows) override;
    void showRemote(const PaneRows &rows) override;
    void showLocalDir(const QString &directory) override;
    void showRemoteDir(const QString &directory) override;
    void forgetRemoteDir(const QString &directory) override;
    void editLocalName(int row) override;
    void editRemoteName(int row) override;
    void unmark(bool isLocalPane, const QueueItem &item) override;
    void forgetDropTarget() override;
    void showFileInfo(const QString &name, const QString &size) override;
    void showProgress(qint64 value, qint64 maximum, const QString &rate) override;
    void AddStatusRow(const StatusRow &row) override;
    void warn(const QString &text) override;
    void inform(const QString &text) override;
    bool confirm(const QString &text, const QString &title) override;
    void askConflict() override;
    bool openFile(const QString &file) override;
    void breathe() override;

    std::unique_ptr<Ui::frmFTP> m_ui;
    std::unique_ptr<FtpSession> m_ftp;
    FtpDesk m_desk;
    RemoteBrowser m_remote;
    LocalBrowser m_local;
    TransferQueue m_queue;
    Focus m_focus = Focus::Local;
    int m_running = 0;
    bool m_closing = false;
    bool m_dragQueued = false; ///< the drag at hand has filled the queue
    QMap<QString, QString> m_accepted; ///< certificates of this session, by server
};
