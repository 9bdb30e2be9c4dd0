#include "catalogue/PriceChain.h"

using Field = PriceChain::Field;

void PriceChain::type(Field field, std::optional<double> value)
{
    // Written so that what a division by nothing gives is refused as well.
    if (value && !(*value >= 0 && *value <= maximum))
        return;
    m_values[size_t(field)] = value;
    if (changed)
        changed(field);
    if (value)
        react(field);
}

void PriceChain::enter(Field field)
{
    if (field == Field::PrixVente)
        m_bHT = false;
    if (field == Field::PrixVenteHT)
        m_bHT = true;
    if (field == Field::PrixVenteHT || field == Field::Marge)
        m_bTTC = false;
}

void PriceChain::leave(Field field)
{
    if (field == Field::PrixVente)
        m_bTTC = false;
}

void PriceChain::setRates(std::optional<double> purchase, std::optional<double> sale)
{
    m_rateA = purchase;
    m_rateV = sale;
}

void PriceChain::chooseTvaA(std::optional<double> rate)
{
    m_rateA = rate;
    if (value(Field::PrixAchat))
        purchasePriceChanged();
}

void PriceChain::chooseTvaV(std::optional<double> rate)
{
    m_rateV = rate;
    if (bChargement || !m_rateV)
        return;
    if (const auto price = value(Field::PrixVente))
        assign(Field::PrixVenteHT, *price / ((*m_rateV / 100) + 1));
}

QString PriceChain::shown(Field field) const
{
    const auto number = value(field);
    return number ? QString::number(*number, 'f', 2) : QString();
}

void PriceChain::react(Field field)
{
    switch (field) {
    case Field::PrixAchat:
        return purchasePriceChanged();
    case Field::PrixAchatTTC:
        return purchasePriceWithTaxChanged();
    case Field::Frais:
        return costsChanged();
    case Field::PrixRevient:
        return costPriceChanged();
    case Field::Marge:
        return marginChanged();
    case Field::PrixVente:
        return salePriceChanged();
    case Field::PrixVenteHT:
        return salePriceWithoutTaxChanged();
    case Field::Qte:
        return quantityChanged();
    case Field::ValeurA:
    case Field::ValeurV:
        return;
    }
}

void PriceChain::multiply(Field target, Field first, Field second)
{
    const auto a = value(first);
    const auto b = value(second);
    if (a && b)
        assign(target, *a * *b);
}

void PriceChain::purchasePriceChanged()
{
    const double price = *value(Field::PrixAchat);
    if (m_rateA)
        assign(Field::PrixAchatTTC, price + ((price * *m_rateA) / 100));
}

void PriceChain::purchasePriceWithTaxChanged()
{
    assign(Field::PrixRevient, *value(Field::PrixAchatTTC) + value(Field::Frais).value_or(0));
}

/// Emptied costs leave the cost price standing: `react` is not called for them.
void PriceChain::costsChanged()
{
    if (const auto price = value(Field::PrixAchatTTC))
        assign(Field::PrixRevient, *price + *value(Field::Frais));
}

void PriceChain::costPriceChanged()
{
    if (bChargement || m_bTTC)
        return;
    multiply(Field::ValeurA, Field::PrixRevient, Field::Qte);
    multiply(Field::PrixVente, Field::PrixRevient, Field::Marge);
}

void PriceChain::marginChanged()
{
    if (bChargement || m_bTTC || !value(Field::PrixRevient))
        return;
    multiply(Field::PrixVente, Field::PrixRevient, Field::Marge);
    m_bTTC = false;
}

void PriceChain::salePriceChanged()
{
    if (bChargement || m_bHT)
        return;
    const double price = *value(Field::PrixVente);
    m_bTTC = true;
    multiply(Field::ValeurV, Field::PrixVente, Field::Qte);
    if (m_rateV)
        assign(Field::PrixVenteHT, price / ((*m_rateV / 100) + 1));
    if (const auto cost = value(Field::PrixRevient))
        assign(Field::Marge, price / *cost);
}

void PriceChain::salePriceWithoutTaxChanged()
{
    if (bChargement || m_bTTC)
        return;
    const double price = *value(Field::PrixVenteHT);
    m_bTTC = false;
    m_bHT = true;
    if (m_rateV)
        assign(Field::PrixVente, price * ((*m_rateV / 100) + 1));
    multiply(Field::ValeurV, Field::PrixVente, Field::Qte);
    const auto sale = value(Field::PrixVente);
    const auto cost = value(Field::PrixRevient);
    if (sale && cost)
        assign(Field::Marge, *sale / *cost);
}

void PriceChain::quantityChanged()
{
    multiply(Field::ValeurA, Field::PrixRevient, Field::Qte);
    multiply(Field::ValeurV, Field::PrixVente, Field::Qte);
}
