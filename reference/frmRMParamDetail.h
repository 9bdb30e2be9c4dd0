#pragma once
#include "reference/DetailEditor.h"

#include <memory>

namespace Ui {
class frmRMParamDetail;
}

/// The children of a node: of a list, a group or a sub-group's own level.
class frmRMParamDetail : public DetailEditor {
    Q_OBJECT
public:
    frmRMParamDetail(Session &session, const ReferenceSelection &parent, QWidget *parentWidget);
    ~frmRMParamDetail() override;

private:
    std::unique_ptr<Ui::frmRMParamDetail> m_ui;
};
