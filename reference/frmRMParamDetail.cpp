#include "reference/frmRMParamDetail.h"

#include "ui_frmRMParamDetail.h"

frmRMParamDetail::frmRMParamDetail(Session &screenSession, const ReferenceSelection &parent, QWidget *parentWidget)
    : DetailEditor(screenSession, parent, parentWidget), m_ui(std::make_unique<Ui::frmRMParamDetail>())
{
    m_ui->setupUi(this);
    fill();
}

frmRMParamDetail::~frmRMParamDetail() = default;
