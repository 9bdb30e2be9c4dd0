#pragma once
#include "shell/Screen.h"

#include <memory>

class QFileSystemModel;
namespace Ui {
class frmDbPath;
}

/// Where the catalogue lies: the sample, the empty store of the application folder, or any folder.
class frmDbPath : public Screen {
    Q_OBJECT
public:
    frmDbPath(Session &session, QWidget *parent);
    ~frmDbPath() override;

    void done(int result) override;

private:
    void choose(const QString &folder);
    void showDrive();
    void validate();

    std::unique_ptr<Ui::frmDbPath> m_ui;
    QFileSystemModel *m_folders;
    QString m_folder;
};
