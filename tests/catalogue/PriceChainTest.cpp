#include "catalogue/PriceChain.h"
#include "tests/support/Suite.h"

#include <QHash>

using namespace Qt::StringLiterals;
using Field = PriceChain::Field;

namespace {

const QHash<QString, Field> &fields()
{
    static const QHash<QString, Field> names = {{u"achat"_s, Field::PrixAchat}, {u"achatTTC"_s, Field::PrixAchatTTC},
                                                {u"frais"_s, Field::Frais},     {u"revient"_s, Field::PrixRevient},
                                                {u"valA"_s, Field::ValeurA},    {u"marge"_s, Field::Marge},
                                                {u"ht"_s, Field::PrixVenteHT},  {u"vente"_s, Field::PrixVente},
                                                {u"valV"_s, Field::ValeurV},    {u"qte"_s, Field::Qte}};
    return names;
}

std::optional<double> numberIn(const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

void play(PriceChain &chain, const QString &step)
{
    const QString name = step.section(u'=', 0, 0);
    const std::optional<double> number = numberIn(step.section(u'=', 1));
    if (step == u"load"_s || step == u"loaded"_s)
        chain.bChargement = step == u"load"_s;
    else if (step == u"again"_s)
        chain.startAgain();
    else if (step == u"+tvaV"_s)
        chain.enterTvaV();
    else if (step.startsWith(u'+'))
        chain.enter(fields().value(step.mid(1)));
    else if (step.startsWith(u'-'))
        chain.leave(fields().value(step.mid(1)));
    else if (name == u"tvaA"_s)
        chain.chooseTvaA(number);
    else if (name == u"tvaV"_s)
        chain.chooseTvaV(number);
    else
        chain.type(fields().value(name), number);
}

} // namespace

/// The reactions of the price fields. Every row was worked out by hand from the rules. Its steps are entries
/// ("achat=100", "frais=" empties), chosen rates ("tvaA=21", "tvaV=-" for none) and the focus ("+vente" comes,
/// "-vente" goes); "load" and "loaded" stand around the filling of the screen, "again" before the next product.
class PriceChainTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void reactions()
    {
        const Rows<const char *, const char *> rows = {
            {"whole chain", "tvaA=21 tvaV=21 frais=5 marge=2 qte=3 achat=100",
             "achatTTC=121.00 revient=126.00 valA=378.00 vente=252.00 valV=756.00 ht=208.26 marge=2.00"},
            {"second cost waits for focus", "tvaA=21 tvaV=21 marge=2 achat=100 frais=10",
             "achatTTC=121.00 revient=131.00 vente=242.00 ht=200.00 marge=2.00"},
            {"left sale price frees the chain", "tvaA=21 tvaV=21 marge=2 achat=100 frais=10 -vente frais=20",
             "revient=141.00 vente=282.00 ht=233.06"},
            {"margin in focus frees the chain", "tvaA=21 tvaV=21 marge=2 achat=100 +marge frais=10",
             "revient=131.00 vente=262.00"},
            {"rate in focus frees the chain", "tvaA=21 tvaV=21 marge=2 achat=100 +tvaV frais=10",
             "revient=131.00 vente=262.00"},
            {"next product frees the chain", "tvaA=21 tvaV=21 marge=2 achat=100 again frais=10",
             "revient=131.00 vente=262.00"},
            {"purchase price in focus does not", "tvaA=21 tvaV=21 marge=2 achat=100 +achat -achat frais=10",
             "revient=131.00 vente=242.00"},
            {"typed margin leaves no latch", "tvaA=21 tvaV=21 achat=100 marge=1.5 frais=9",
             "revient=130.00 vente=195.00 ht=161.16 marge=1.50"},
            {"margin waits while the latch stands", "tvaA=21 tvaV=21 achat=100 vente=242 marge=3",
             "vente=242.00 marge=3.00 ht=200.00"},
            {"sale price gives the margin", "tvaA=21 tvaV=21 achat=100 vente=242",
             "marge=2.00 ht=200.00 revient=121.00"},
            {"no cost, no margin", "tvaV=21 vente=121", "ht=100.00 marge= revient= valV="},
            {"sale price, then cost", "tvaA=21 tvaV=21 vente=242 achat=100", "revient=121.00 marge= vente=242.00"},
            {"price without tax drives", "tvaA=0 tvaV=21 qte=2 achat=50 +ht ht=100",
             "vente=121.00 valV=242.00 marge=2.42 revient=50.00 valA=100.00"},
            {"without tax, then with", "tvaA=0 tvaV=21 qte=2 achat=50 +ht ht=100 +vente vente=242",
             "ht=200.00 marge=4.84 valV=484.00"},
            {"with tax, then without", "tvaV=21 +vente vente=121 -vente +ht ht=200", "vente=242.00 ht=200.00"},
            {"without tax is silent under the latch", "tvaV=21 +vente vente=121 ht=200", "vente=121.00 ht=200.00"},
            {"with tax is silent while the other drives", "tvaV=21 +ht ht=100 vente=242", "vente=242.00 ht=100.00"},
            {"sale rate moves the price without tax", "tvaV=21 vente=121 +tvaV tvaV=10", "vente=121.00 ht=110.00"},
            {"sale rate under the latch", "tvaV=21 vente=121 tvaV=10", "vente=121.00 ht=110.00"},
            {"purchase rate moves the price with tax", "tvaA=21 achat=100 tvaA=6",
             "achat=100.00 achatTTC=106.00 revient=106.00"},
            {"no rates", "tvaA=- tvaV=- achat=100 marge=2 achatTTC=120",
             "achat=100.00 achatTTC=120.00 revient=120.00 vente=240.00 ht= marge=2.00"},
            {"emptied quantity keeps the values", "qte=3 achatTTC=10 vente=20 qte=", "valA=30.00 valV=60.00 qte="},
            {"quantity counts both values", "achatTTC=10 vente=20 qte=5", "valA=50.00 valV=100.00"},
            {"emptied costs keep the cost price", "tvaA=21 achat=100 frais=5 frais=", "frais= revient=126.00"},
            {"costs count again with the next price", "tvaA=21 achat=100 frais=5 frais= achat=200", "revient=242.00"},
            {"costs without a price", "frais=5", "revient= achatTTC="},
            {"emptied purchase price", "tvaA=21 achat=100 achat=", "achat= achatTTC=121.00 revient=121.00"},
            {"cost price of nothing", "achatTTC=0 tvaV=21 vente=121", "revient=0.00 ht=100.00 marge="},
            {"margin survives a cost price of nothing", "achatTTC=100 marge=2 -vente achatTTC=0 +vente vente=50",
             "marge=2.00 revient=0.00"},
            {"margin of nothing", "tvaV=21 achatTTC=100 marge=0", "vente=0.00 ht=0.00 marge=0.00"},
            {"rate of nothing", "tvaA=0 tvaV=0 achat=80 vente=100", "achatTTC=80.00 ht=100.00 marge=1.25"},
            {"too much for a box", "qte=3 achatTTC=600000 marge=2", "revient=600000.00 valA= vente= ht= marge=2.00"},
            {"largest price fits", "achatTTC=999999.99", "revient=999999.99"},
            {"refused entries", "tvaA=21 achat=100 achat=1000000 achat=-5", "achat=100.00 achatTTC=121.00"},
            {"hand-made cost price", "tvaV=0 achatTTC=100 marge=2 -vente revient=50",
             "revient=50.00 vente=100.00 achatTTC=100.00"},
            {"no rounding on the way", "tvaA=5.5 tvaV=20 marge=3 achat=33.33",
             "achatTTC=35.16 revient=35.16 vente=105.49 ht=87.91 marge=3.00"},
            {"loading counts the cost price again",
             "tvaA=20 load qte=2 achat=100 marge=3 vente=300 frais=5 revient=50 valA=7 valV=8 achatTTC=110 ht=250 "
             "tvaA=21 "
             "loaded",
             "achatTTC=121.00 revient=126.00 vente=300.00 ht=250.00 marge=3.00 valA=7.00 valV=8.00"},
            {"loading of equal prices too", "tvaA=21 load achat=100 frais=5 revient=50 achatTTC=121 tvaA=21 loaded",
             "achatTTC=121.00 revient=126.00"},
            {"loaded product reacts", "tvaA=21 tvaV=21 load achat=100 marge=2 vente=242 tvaA=21 loaded achat=200",
             "revient=242.00 vente=484.00 ht=400.00"},
            {"silent rate counts afterwards", "load tvaV=21 loaded vente=121", "ht=100.00"}};
        for (const auto &[row, steps, shown] : rows) {
            const Row named(row);
            PriceChain chain;
            for (const QString &step : QString::fromLatin1(steps).split(u' '))
                play(chain, step);
            for (const QString &expected : QString::fromLatin1(shown).split(u' ')) {
                const QString name = expected.section(u'=', 0, 0);
                QVERIFY(fields().contains(name));
                QCOMPARE(name + u'=' + chain.shown(fields().value(name)), expected);
            }
        }
    }

    /// A box that is not told keeps an old price on the screen, and the store gets it.
    void tellsEveryFieldThatMoved()
    {
        PriceChain chain;
        std::array<QString, PriceChain::fieldCount> boxes;
        chain.changed = [&](Field field) { boxes[size_t(field)] = chain.shown(field); };
        for (const char *step : {"tvaA=21", "tvaV=21", "qte=3", "marge=2", "achat=100", "-vente", "frais=4", "frais="})
            play(chain, QString::fromLatin1(step));
        for (const Field field : fields())
            QCOMPARE(boxes[size_t(field)], chain.shown(field));
        QCOMPARE(boxes[size_t(Field::ValeurV)], u"750.00"_s);
    }
};

ZELVANTOR_SUITE(PriceChainTest)
#include "PriceChainTest.moc"
