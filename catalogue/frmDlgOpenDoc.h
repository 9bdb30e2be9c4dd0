#pragma once
#include "shell/Screen.h"

#include <memory>

class QFileSystemModel;
class QListWidget;
class QListWidgetItem;
namespace Ui {
class frmDlgOpenDoc;
}

/// The file dialogue in its two uses: the editor of the pictures or the documents of the product at hand, and, where
/// `gbChoixFichier` is set, the picker of one file for another screen, which leaves the store alone.
class frmDlgOpenDoc : public Screen {
    Q_OBJECT
public:
    frmDlgOpenDoc(Session &session, QWidget *parent);
    ~frmDlgOpenDoc() override;

    void textsLoaded() override;

    /// Full path of the file that the picker validated; empty when the dialogue was left.
    const QString &chosenPath() const { return m_chosen; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void openRememberedFolder();
    void wire();
    QString folder() const;
    void showFolder(const QString &path);
    void fillFiles();
    QString pathOf(const QListWidgetItem &entry) const;
    void enter(const QListWidgetItem *entry);
    void showPreview(const QListWidgetItem *entry);
    void AfficherDocs();
    void add();
    void validate();
    bool pick();
    bool writeList();
    bool VerifierElementListe(const QString &path) const;

    std::unique_ptr<Ui::frmDlgOpenDoc> m_ui;
    QFileSystemModel *m_folders;
    QString m_chosen;
    QStringList m_opened; ///< the paths that were stored when the list was filled
};
