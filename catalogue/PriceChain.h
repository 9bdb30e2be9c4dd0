#pragma once
#include <QString>

#include <array>
#include <functional>
#include <optional>

/// The prices of a product and how they follow one another. Each field reacts to its own change, so that one
/// entry runs down a chain of reactions; two latches keep the chain from running back up. The order of the
/// reactions, their guards and their gaps are the design.
///
/// Values are kept as computed; two decimals are a matter of `shown()` and so of what the store receives.
class PriceChain {
public:
    enum class Field {
        PrixAchat, ///< purchase price without tax
        PrixAchatTTC,
        Frais,
        PrixRevient, ///< cost price, built on the purchase price with tax
        ValeurA,     ///< stock value at cost
        Marge,       ///< a factor on the cost price
        PrixVenteHT,
        PrixVente, ///< sale price with tax
        ValeurV,   ///< stock value at sale price
        Qte,
    };
    static constexpr int fieldCount = int(Field::Qte) + 1;
    static constexpr double maximum = 999999.99; ///< of every field; the minimum is 0

    /// Called after a field has taken a value, by whichever way, before its reactions run.
    std::function<void(Field)> changed;
    /// While the screen is being filled most reactions are silent.
    bool bChargement = false;

    /// A completed entry, or a value given from outside; null empties the field. A value outside the limits is
    /// refused: the field keeps its own, and nothing reacts.
    void type(Field field, std::optional<double> value);
    void enter(Field field); ///< the field gains the focus
    void leave(Field field); ///< the field loses it
    /// A VAT rate in percent is chosen; null where the chosen text is no number or nothing is chosen.
    void chooseTvaA(std::optional<double> rate);
    void chooseTvaV(std::optional<double> rate);
    void enterTvaV() { m_bTTC = false; }
    /// Takes a rate without any reaction, as the first filling of the screen does.
    void setRates(std::optional<double> purchase, std::optional<double> sale);
    /// Before the next new product: the sale latch falls. The fields are emptied from outside.
    void startAgain() { m_bTTC = false; }

    std::optional<double> value(Field field) const { return m_values[size_t(field)]; }
    /// The value with two decimals, or an empty text.
    QString shown(Field field) const;

private:
    void assign(Field field, double value) { type(field, value); }
    void react(Field field);
    void purchasePriceChanged();
    void purchasePriceWithTaxChanged();
    void costsChanged();
    void costPriceChanged();
    void marginChanged();
    void salePriceChanged();
    void salePriceWithoutTaxChanged();
    void quantityChanged();
    void multiply(Field target, Field first, Field second);

    std::array<std::optional<double>, fieldCount> m_values;
    std::optional<double> m_rateA;
    std::optional<double> m_rateV;
    bool m_bTTC = false; ///< the sale price with tax has just driven the others
    bool m_bHT = false;  ///< the sale price without tax drives
};
