#pragma once
#include "ftp/FtpPane.h"
#include "ftp/frmFTP.h"
#include "tests/desk/Desk.h"
#include "tests/ftp/MemorySession.h"
#include "tests/support/Files.h"

#include <QAction>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

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
    std::unique_ptr<frmFTP> open()
    {
        auto server = std::make_unique<MemorySession>();
        session0 = server.get();
        server->files = {{QStringLiteral("/www/"), {}},
                         {QStringLiteral("/www/old.txt"), "old"},
                         {QStringLiteral("/index.htm"), "1234567"}};
        auto window = std::make_unique<frmFTP>(session, nullptr, std::move(server));
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            qFatal("the window can't be active");
        return window;
    }
    void connectTo(QWidget &window)
    {
        Visitor visitor;
        visitor.whenShown(QStringLiteral("frmConnect"), [](QWidget &dialog) {
            control<QLineEdit>(dialog, "txtRemoteHost").setText(QStringLiteral("ftp.example"));
            control<QLineEdit>(dialog, "txtUserName").setText(QStringLiteral("anne"));
            control<QLineEdit>(dialog, "txtPassword").setText(QStringLiteral("secret-word"));
            control<QPushButton>(dialog, "cmdOK").click();
        });
        control<QAction>(window, "connect").trigger();
        QCOMPARE(visitor.waiting(), QStringList());
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    MemorySession *session0 = nullptr;
};

inline FtpPane &pane(QWidget &window, const char *name)
{
    return control<FtpPane>(window, name);
}

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
