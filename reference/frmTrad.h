#pragma once
#include "shell/Screen.h"

#include <memory>

class IniFile;
namespace Ui {
class frmTrad;
}

/// The texts of one window, changed in place in the language file.
class frmTrad : public Screen {
    Q_OBJECT
public:
    /// `Tag` is the section of the window it was opened from, `caption` that window's.
    frmTrad(Session &session, QString Tag, const QString &caption, QWidget *parent);
    ~frmTrad() override;

    /// A second one over the same texts would undo the work of the first.
    bool isTranslatable() const override { return false; }

    /// Fills the grid with the keys that have a text.
    void Afficher();
    /// Writes the grid back.
    Result Ajouter();

private:
    QString path() const;
    Result load(IniFile &file) const;
    void tell(const Result &failure, const QString &method) const;
    void validate();

    std::unique_ptr<Ui::frmTrad> m_ui;
    QString m_section;
};
