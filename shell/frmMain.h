#pragma once
#include "shell/Session.h"

#include <QLocale>
#include <QMainWindow>
#include <QPageLayout>
#include <array>
#include <memory>

class QLabel;
namespace Ui {
class frmMain;
}

/// The frame of the program: the bar of commands, the menus, the status bar and the child windows.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    frmMain(Session &session, QWidget *parent = nullptr);
    ~frmMain() override;

    /// Opens the second connection to the store; `bCopie` chooses its target.
    void ConnectLocal(bool bCopie);
    void AfficherInfo();
    void AjouterBT();
    void AfficherInfoDoc();
    void AfficherEmail();
    /// Gives the bar the texts that the language file has for it; the bar's items are added by code.
    void ChangerLangue();

Q_SIGNALS:
    /// The window has been closed in order, and the session is to end.
    void ended();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void wireMenus();
    void setUpPage();
    QWidget &windowAtWork();
    void translate(QWidget &window);
    void readPosition();
    void dispatch(const QString &key);
    void showRegional();
    void showCopies();
    void arrangeChildren(Qt::Orientation orientation);
    void openHelp();

    Session &m_session;
    std::unique_ptr<Ui::frmMain> m_ui;
    QLabel *m_user;
    QLabel *m_connect;
    QPageLayout m_pageLayout;            ///< of the prints of the screen; not valid before one was chosen
    QStringList m_remarks;               ///< REF_REMARQUE in the order of its rows
    std::array<QString, 6> m_mailServer; ///< no screen sends mail with it
    bool m_isAdmin = false;
    QLocale m_userLocale; ///< what the numbers looked like before the session forced the point
};
