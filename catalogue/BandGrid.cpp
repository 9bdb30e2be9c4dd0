#include "catalogue/BandGrid.h"

#include "platform/NumberLocale.h"
#include "platform/Spread.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

enum Column { PrixHT = 1, Tva, PrixTTC, QteMin, QteMax };

constexpr int freeRows = 20; // at least; a product with many bands gets room for all of them
constexpr int lastOpeningRow = 4;
const QString openEnd = u"999999"_s;

} // namespace

BandGrid::BandGrid(Spread &fpSpread2) : QObject(&fpSpread2), m_grid(fpSpread2)
{
    m_grid.resizeGrid(freeRows, QteMax);
    SpreadModel &cells = m_grid.cells();
    for (const Column column : {PrixHT, PrixTTC})
        cells.setNumberColumn(column, 2);
    for (const Column column : {QteMin, QteMax})
        cells.setNumberColumn(column, 0);
    const QStringList headings = {u"Prix HT"_s, u"TVA"_s, u"Prix TTC"_s, u"Qte min"_s, u"Qte max"_s};
    for (int column = PrixHT; column <= QteMax; ++column)
        m_grid.setText(column, 0, headings[column - 1]);
    m_grid.setDeleteEmpties(true);
    m_grid.setColumnWidths({75, 60, 75, 70, 75});
    connect(&cells, &SpreadModel::cellChanged, this, &BandGrid::openNextBand);
    connect(&m_grid, &Spread::cellLeft, this, &BandGrid::followPrice);
}

void BandGrid::setRates(const QStringList &rates)
{
    m_rates = int(rates.size());
    m_grid.cells().setColumnChoices(Tva, rates);
}

void BandGrid::chooseRate(int position)
{
    for (int row = 1; row <= m_grid.MaxRows(); ++row)
        m_grid.cells().setChoiceIndex(Tva, row, position);
}

void BandGrid::show(const std::vector<ProductRows::Band> &bands)
{
    const QScopedValueRollback writing(m_settled, false);
    const auto give = [this](int column, int row, const QString &text) {
        if (!text.isEmpty())
            m_grid.setText(column, row, text);
    };
    const int rate = m_grid.cells().choiceIndex(Tva, 1);
    const int before = m_grid.MaxRows();
    m_grid.resizeGrid(std::max(before, int(bands.size()) + freeRows), QteMax);
    for (int row = before + 1; row <= m_grid.MaxRows(); ++row)
        m_grid.cells().setChoiceIndex(Tva, row, rate);
    for (int row = 1; row <= int(bands.size()); ++row) {
        const ProductRows::Band &band = bands[size_t(row - 1)];
        give(PrixHT, row, band.prixHT);
        if (band.idTva >= 0 && band.idTva < m_rates)
            m_grid.cells().setChoiceIndex(Tva, row, band.idTva);
        give(PrixTTC, row, band.prixTTC);
        give(QteMin, row, band.iQte1);
        give(QteMax, row, band.iQte2);
    }
}

std::vector<ProductRows::Band> BandGrid::bands() const
{
    std::vector<ProductRows::Band> bands;
    for (int row = 1; row <= m_grid.DataRowCnt(); ++row)
        bands.push_back({m_grid.text(PrixHT, row), m_grid.cells().choiceIndex(Tva, row), m_grid.text(PrixTTC, row),
                         m_grid.text(QteMin, row), m_grid.text(QteMax, row)});
    return bands;
}

void BandGrid::clear()
{
    for (int row = 1; row <= m_grid.MaxRows(); ++row)
        for (const Column column : {PrixHT, PrixTTC, QteMin, QteMax})
            m_grid.setText(column, row, {});
}

void BandGrid::openNextBand(int column, int row)
{
    bool isNumber = false;
    const int end = m_grid.text(column, row).toInt(&isNumber);
    if (!m_settled || column != QteMax || row > lastOpeningRow || !isNumber)
        return;
    const QScopedValueRollback writing(m_settled, false);
    m_grid.setText(QteMin, row + 1, QString::number(qint64(end) + 1));
    m_grid.setText(QteMax, row + 1, openEnd);
}

void BandGrid::followPrice(int column, int row)
{
    if (column != PrixHT && column != PrixTTC)
        return;
    bool isPrice = false;
    bool isRate = false;
    const float price = m_grid.text(column, row).toFloat(&isPrice);
    const float factor = m_grid.text(Tva, row).toFloat(&isRate) / 100 + 1;
    if (!isPrice || !isRate)
        return;
    const float other = column == PrixHT ? factor * price : price / factor;
    m_grid.setText(column == PrixHT ? PrixTTC : PrixHT, row, QString::number(double(other), 'f', 2));
}
