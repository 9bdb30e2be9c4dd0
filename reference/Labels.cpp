#include "reference/Labels.h"

using namespace Qt::StringLiterals;

QString Labels::fileName(Template layout)
{
    switch (layout) {
    case Template::TwoColumns:
        return u"etiquette1.tpl"_s;
    case Template::ThreeColumns:
        return u"etiquette3.tpl"_s;
    case Template::FourColumns:
        return u"etiquette4.tpl"_s;
    case Template::WithDescription:
        break;
    }
    return u"etiquette2.tpl"_s;
}

PrintFields Labels::fields(const LabelProduct &product, const QString &sLangue, Template layout, bool withPrice,
                           const QString &currency)
{
    PrintFields fields{{u"Ean13"_s, product.Ean13}};
    if (product.names.contains(sLangue)) {
        fields.insert(u"Nom"_s, product.names.value(sLangue));
        fields.insert(u"dDescription"_s, product.descriptions.value(sLangue));
    }
    if (layout != Template::ThreeColumns)
        fields.insert(u"RefArticle"_s, product.RefArticle);
    fields.insert(u"PrixTTC"_s, withPrice ? product.price + u' ' + currency : QString());
    return fields;
}
