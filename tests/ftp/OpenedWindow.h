#pragma once
#include "ftp/FtpPane.h"
#include "ftp/frmFTP.h"
#include "tests/desk/Desk.h"
#include "tests/ftp/MemorySession.h"

/// The FTP window over a small shop and a server in memory.
class FtpDeskTest : public Desk {
public:
    FtpDeskTest()
    {
        openSample();
        QDir().mkpath(path(QStringLiteral("data/temp/images")));
        Files::write(path(QStringLiteral("data/temp/index.htm")), "page");
        Files::write(path(QStringLiteral("data/temp/panier.txt")), "0123456789");
        Files::write(path(QStringLiteral("data/temp/images/a.gif")), "gif");
    }
    void open()
    {
        auto memory = std::make_unique<MemorySession>();
        server = memory.get();
        server->files = {{QStringLiteral("/www/"), {}},
                         {QStringLiteral("/www/old.txt"), "old"},
                         {QStringLiteral("/index.htm"), "1234567"}};
        window = std::make_unique<frmFTP>(session, nullptr, std::move(memory));
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window can't be active");
    }
    void connect()
    {
        Visitor visitor;
        visitor.whenShown(QStringLiteral("frmConnect"), [](QWidget &dialog) {
            control<QLineEdit>(dialog, "txtRemoteHost").setText(QStringLiteral("ftp.example"));
            control<QLineEdit>(dialog, "txtUserName").setText(QStringLiteral("anne"));
            control<QLineEdit>(dialog, "txtPassword").setText(QStringLiteral("secret-word"));
            control<QPushButton>(dialog, "cmdOK").click();
        });
        trigger("connect");
        QCOMPARE(visitor.waiting(), QStringList());
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    void openConnected()
    {
        open();
        connect();
    }
    FtpPane &local() const { return control<FtpPane>(*window, "lvwLocal"); }
    FtpPane &remote() const { return control<FtpPane>(*window, "lvwRemote"); }
    void trigger(const char *action) const { control<QAction>(*window, action).trigger(); }
    bool offers(const char *action) const { return control<QAction>(*window, action).isEnabled(); }
    void send() const { control<QToolButton>(*window, "cmdAjouter").click(); }

    MemorySession *server = nullptr;
    std::unique_ptr<frmFTP> window;
};

inline QStringList names(QTreeWidget &list)
{
    QStringList texts;
    for (int i = 0; i < list.topLevelItemCount(); ++i)
        texts << list.topLevelItem(i)->text(0);
    return texts;
}

inline void select(FtpPane &list, const QStringList &wanted)
{
    list.setFocus();
    list.clearSelection();
    for (const QString &name : wanted)
        for (QTreeWidgetItem *item : list.findItems(name, Qt::MatchExactly)) {
            list.setCurrentItem(item, 0, QItemSelectionModel::NoUpdate);
            item->setSelected(true);
        }
}
