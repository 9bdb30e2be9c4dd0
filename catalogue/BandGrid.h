#pragma once
#include "catalogue/ProductRows.h"

#include <QObject>

class Spread;

/// The prices by quantity: a band's end opens the next band, and each of the two prices follows the other when its
/// cell is left.
class BandGrid : public QObject {
    Q_OBJECT
public:
    explicit BandGrid(Spread &fpSpread2);

    /// The rates of the VAT column, in the order of the combo.
    void setRates(const QStringList &rates);
    /// Chooses one rate in every row.
    void chooseRate(int position);
    void show(const std::vector<ProductRows::Band> &bands);
    std::vector<ProductRows::Band> bands() const;
    /// Empties all but the rates.
    void clear();

private:
    void openNextBand(int column, int row);
    void followPrice(int column, int row);

    Spread &m_grid;
    int m_rates = 0;
    bool m_settled = true; ///< what the program writes opens no band
};
