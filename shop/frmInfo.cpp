#include "shop/frmInfo.h"

#include "platform/Messages.h"
#include "shell/Causes.h"
#include "shop/CompanyInfo.h"
#include "ui_frmInfo.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { Label = 1, Value, Number };

}

frmInfo::frmInfo(Session &screenSession, QWidget *parent)
    : Screen(screenSession, parent), m_ui(std::make_unique<Ui::frmInfo>())
{
    m_ui->setupUi(this);
    m_ui->fpSpread3->resizeGrid(0, Number);
    m_ui->fpSpread3->setText(Label, 0, u"Libellé"_s);
    m_ui->fpSpread3->setText(Value, 0, u"Valeur"_s);
    AfficherInfo();
    m_ui->fpSpread3->hideColumns(Number, Number);
    m_ui->fpSpread3->setColumnWidth(Label - 1, 220);
    connect(m_ui->cmdValider, &QPushButton::clicked, this, &frmInfo::validate);
    connect(m_ui->cmdFermer, &QPushButton::clicked, this, &frmInfo::reject);
    opened();
}

frmInfo::~frmInfo() = default;

void frmInfo::AfficherInfo()
{
    Result read;
    const std::vector<InfoRow> rows = CompanyInfo::read(session().gCnn, read);
    if (!read)
        session().messages->box(read.message(), u"AfficherInfo"_s);
    Spread &grid = *m_ui->fpSpread3;
    grid.resizeGrid(int(rows.size()), Number);
    int line = 0;
    for (const InfoRow &row : rows) {
        ++line;
        grid.setText(Label, line, row.sInfo);
        grid.setText(Value, line, row.sValeur);
        grid.setText(Number, line, row.idInfo);
    }
}

void frmInfo::validate()
{
    std::vector<InfoRow> rows;
    Spread &grid = *m_ui->fpSpread3;
    grid.finishEditing();
    for (int line = 1; line <= grid.MaxRows(); ++line)
        rows.push_back({grid.text(Number, line), grid.text(Label, line), grid.text(Value, line)});
    if (const Result written = CompanyInfo::write(rows, session()); !written) {
        session().messages->box(Causes::message(written, session().localisation), u"AjouterInfo"_s);
        return;
    }
    accept();
}
