#pragma once
#include "data/StoreCopies.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmCopies;
}

/// The dated copies of the store, one of which can take its place.
class frmCopies : public Screen {
    Q_OBJECT
public:
    frmCopies(Session &session, QWidget *parent);
    ~frmCopies() override;

    bool restored = false;

private:
    void showCopies();
    void restoreChosen();
    QString nameOf(const StoreCopy &copy) const;

    std::unique_ptr<Ui::frmCopies> m_ui;
    StoreCopies m_storeCopies;
    std::vector<StoreCopy> m_list;
};
