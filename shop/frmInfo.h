#pragma once
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmInfo;
}

/// The company data that stands in the pages of the shop.
class frmInfo : public Screen {
    Q_OBJECT
public:
    frmInfo(Session &session, QWidget *parent);
    ~frmInfo() override;

    /// Fills the grid, one row per row of REF_INFO, the number in a hidden column.
    void AfficherInfo();

private:
    void validate();

    std::unique_ptr<Ui::frmInfo> m_ui;
};
