#pragma once
#include "reference/ReferenceTree.h"
#include "shell/Screen.h"

#include <memory>

namespace Ui {
class frmRefDetail;
}

/// The attributes of a sub-group, each with the list that its values may come from.
class frmRefDetail : public Screen {
    Q_OBJECT
public:
    frmRefDetail(Session &session, const ReferenceSelection &parent, QWidget *parentWidget);
    ~frmRefDetail() override;

private:
    std::unique_ptr<Ui::frmRefDetail> m_ui;
};
