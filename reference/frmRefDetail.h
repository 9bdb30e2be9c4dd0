#pragma once
#include "reference/DetailEditor.h"

#include <memory>

namespace Ui {
class frmRefDetail;
}

/// The attributes of a sub-group, each with the list that its values may come from.
class frmRefDetail : public DetailEditor {
    Q_OBJECT
public:
    frmRefDetail(Session &session, const ReferenceSelection &parent, QWidget *parentWidget);
    ~frmRefDetail() override;

private:
    std::unique_ptr<Ui::frmRefDetail> m_ui;
};
