#pragma once
#include "shell/Screen.h"

#include <memory>

class QFileSystemModel;
namespace Ui {
class frmDlgOpenDoc;
}

/// The file dialogue, here as the picker of a single picture for another screen.
class frmDlgOpenDoc : public Screen {
    Q_OBJECT
public:
    frmDlgOpenDoc(Session &session, QWidget *parent);
    ~frmDlgOpenDoc() override;

    /// Full path of the file that was validated; empty when the dialogue was left.
    const QString &chosenPath() const { return m_chosen; }

private:
    void openRememberedFolder();
    void wire();
    QString folder() const;
    void showFolder(const QString &path);
    void fillFiles();
    void showPreview();
    void add();
    void validate();
    bool VerifierElementListe(const QString &path) const;

    std::unique_ptr<Ui::frmDlgOpenDoc> m_ui;
    QFileSystemModel *m_folders;
    QString m_chosen;
};
