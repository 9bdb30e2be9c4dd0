#include "catalogue/AttributeGrid.h"

#include "platform/Messages.h"
#include "platform/Spread.h"
#include "shell/Session.h"

using namespace Qt::StringLiterals;

namespace {

enum Column { Champs = 1, Valeur, List, IdListe, Key };

constexpr int modify = 2;

} // namespace

AttributeGrid::AttributeGrid(Spread &fpSpread1, Session &session) : m_grid(fpSpread1), m_session(session)
{
    m_grid.resizeGrid(0, Key);
    m_grid.cells().setColumnType(Champs, SpreadModel::CellType::Locked);
    m_grid.cells().setColumnType(List, SpreadModel::CellType::Locked);
    m_grid.setText(Champs, 0, u"Champs"_s);
    m_grid.setText(Valeur, 0, u"Valeur"_s);
    m_grid.setDeleteEmpties(true);
    m_grid.hideColumns(IdListe, Key);
    m_grid.setColumnWidths({95, 100, 72});
}

void AttributeGrid::AfficherFParam()
{
    m_grid.resizeGrid(0, Key);
    Result read;
    const auto attributes = ProductRows::readAttributes(m_session.gCnn, m_session.glIdFamille, read);
    if (!read)
        m_session.messages->box(read.message(), u"AfficherFParam"_s);
    m_grid.resizeGrid(int(attributes.size()), Key);
    int row = 0;
    for (const ProductRows::Attribute &attribute : attributes) {
        ++row;
        m_grid.setText(Key, row, attribute.key);
        m_grid.setText(Champs, row, attribute.sLibelle);
        m_grid.setText(List, row, attribute.sListe);
        m_grid.setText(IdListe, row, attribute.idListe);
        if (!attribute.idListe.isEmpty())
            RemplirCBT(row, attribute.idListe);
        if (m_session.giModeProduit == modify)
            m_grid.setText(Valeur, row, ChercherValeur(attribute.key));
    }
}

void AttributeGrid::RemplirCBT(int row, const QString &idListe)
{
    Result read;
    const QStringList texts = ProductRows::readList(m_session.gCnn, idListe, read);
    if (!read)
        m_session.messages->box(read.message(), u"RemplirCBT"_s);
    if (!texts.isEmpty())
        m_grid.cells().setChoices(Valeur, row, texts);
}

QString AttributeGrid::ChercherValeur(const QString &attribute) const
{
    Result read;
    QString value = ProductRows::ChercherValeur(m_session.gCnn, attribute, m_session.glIdProduit, read);
    if (!read)
        m_session.messages->box(read.message(), u"ChercherValeur"_s);
    return value;
}

std::vector<ProductRows::Attribute> AttributeGrid::attributes() const
{
    std::vector<ProductRows::Attribute> attributes;
    for (int row = 1; row <= m_grid.DataRowCnt(); ++row)
        attributes.push_back({m_grid.text(Key, row), m_grid.text(Champs, row), m_grid.text(List, row),
                              m_grid.text(IdListe, row), m_grid.text(Valeur, row)});
    return attributes;
}
