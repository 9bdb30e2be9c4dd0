#include "reference/frmRefDetail.h"

#include "reference/DetailPane.h"
#include "ui_frmRefDetail.h"

using namespace Qt::StringLiterals;

frmRefDetail::frmRefDetail(Session &screenSession, const ReferenceSelection &parent, QWidget *parentWidget)
    : Screen(screenSession, parentWidget), m_ui(std::make_unique<Ui::frmRefDetail>())
{
    m_ui->setupUi(this);
    auto *pane = new DetailPane(*this, session(), parent);
    opened();
    const QString title = session().localisation.Traduire(u"GDETAIL"_s, parent.bCategorie ? u"t2"_s : u"t1"_s);
    m_ui->lbTitre->setText(title);
    setWindowTitle(parent.sLibelleSel + u'/' + title);
    pane->AfficherFParam();
}

frmRefDetail::~frmRefDetail() = default;
