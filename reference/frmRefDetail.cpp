#include "reference/frmRefDetail.h"

#include "ui_frmRefDetail.h"

frmRefDetail::frmRefDetail(Session &screenSession, const ReferenceSelection &parent, QWidget *parentWidget)
    : DetailEditor(screenSession, parent, parentWidget), m_ui(std::make_unique<Ui::frmRefDetail>())
{
    m_ui->setupUi(this);
    fill();
}

frmRefDetail::~frmRefDetail() = default;
