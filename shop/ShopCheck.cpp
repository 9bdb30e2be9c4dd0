#include "shop/ShopCheck.h"

#include "platform/CodePage.h"
#include "platform/OneLine.h"
#include "shell/HtmlVersTexte.h"
#include "shop/CompanyInfo.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

bool holdsAny(const QString &text, QStringView characters)
{
    return std::any_of(text.begin(), text.end(), [&](QChar c) { return characters.contains(c); });
}

bool losesCharacters(const QString &text)
{
    int lost = 0;
    CodePage::encode(text, &lost);
    return lost > 0;
}

class Check {
public:
    Check(const ShopData &data, const Selection &selection, Session &session)
        : m_data(data), m_selection(selection), m_session(session)
    {
    }

    std::vector<Finding> run()
    {
        settings();
        company();
        groups();
        products();
        pictures();
        return std::move(m_findings);
    }

private:
    void add(Finding::Kind kind, const QString &subject, const QString &control = {}, int row = 0)
    {
        m_findings.push_back({kind, subject, control, row});
    }

    void settings()
    {
        const ShopSettings &s = m_data.settings;
        if (s.txtMin.trimmed().isEmpty())
            add(Finding::NoMinimumOrder, {}, u"txtMin"_s);
        if (!s.chGratuit)
            for (const ShippingMethod &method : s.fpSpread12)
                if (method.value.contains(u','))
                    add(Finding::CommaInShippingPrice, method.name, u"fpSpread12"_s, method.row);
        if (isNumber(s.txtMin) && s.txtMin.trimmed().toDouble() < 0)
            add(Finding::NegativeMinimum, s.txtMin, u"txtMin"_s);
        numbers();
        lines();
        if (holdsAny(s.txtSymbol, u"'\"\\"))
            add(Finding::QuoteInSetting, s.txtSymbol, u"txtSymbol"_s);
        logo();
        // The title stands in every line of the search, where its apostrophes turn into double quotes too.
        if (holdsAny(s.txtTitre, u"'\"\\"))
            add(Finding::QuoteInName, s.txtTitre, u"txtTitre"_s);
        if (s.txtPPEmail.trimmed().isEmpty())
            add(Finding::NoPaymentAccount, {}, u"txtPPEmail"_s);
        else if (s.txtPPEmail == DeliveredPayment::account)
            add(Finding::DeliveredPaymentAccount, s.txtPPEmail, u"txtPPEmail"_s);
        const std::pair<QString, QString> texts[] = {
            {u"txtmessage"_s, s.txtmessage},       {u"txtModalite"_s, s.txtModalite},
            {u"txtExpedition"_s, s.txtExpedition}, {u"txtPrivacy"_s, s.txtPrivacy},
            {u"txtKeyword"_s, s.txtKeyword},       {u"txtDescription"_s, s.txtDescription}};
        for (const auto &[control, text] : texts) {
            if (losesCharacters(text))
                add(Finding::CharactersLost, text.left(40), control);
            if (s.chSearch && text.contains(u'\\'))
                add(Finding::QuoteInText, text.left(40), control);
        }
    }

    /// A field of one line; the scripts and pages hold it in one line too.
    void line(const QString &text, const QString &subject, const QString &control = {}, int row = 0)
    {
        if (losesCharacters(text))
            add(Finding::CharactersLost, subject, control, row);
        if (oneLine(text) != text)
            add(Finding::ControlCharacter, oneLine(subject), control, row);
    }

    void lines()
    {
        const ShopSettings &s = m_data.settings;
        const std::pair<QString, QString> fields[] = {
            {u"txtFile"_s, s.txtFile},       {u"txtFrais"_s, s.txtFrais},       {u"txtlbFrais"_s, s.txtlbFrais},
            {u"txtTaxe"_s, s.txtTaxe},       {u"txtlbTaxe"_s, s.txtlbTaxe},     {u"txtForm"_s, s.txtForm},
            {u"txtDest"_s, s.txtDest},       {u"txtExp"_s, s.txtExp},           {u"txtSymbol"_s, s.txtSymbol},
            {u"txtPPEmail"_s, s.txtPPEmail}, {u"txtPPRetour"_s, s.txtPPRetour}, {u"txtPPDevise"_s, s.txtPPDevise},
            {u"txtMin"_s, s.txtMin},         {u"txtTitre"_s, s.txtTitre}};
        for (const auto &[control, text] : fields)
            line(text, text.left(40), control);
        if (!s.chGratuit)
            for (const ShippingMethod &method : s.fpSpread12)
                line(method.name + method.value, method.name, u"fpSpread12"_s, method.row);
    }

    static bool isNumber(const QString &text)
    {
        bool isOne = false;
        const double number = text.trimmed().toDouble(&isOne);
        return isOne && std::isfinite(number);
    }

    void numbers()
    {
        const ShopSettings &s = m_data.settings;
        const std::pair<QString, QString> fields[] = {{u"txtMin"_s, s.txtMin}, {u"txtTaxe"_s, s.txtTaxe}};
        for (const auto &[control, text] : fields)
            if (!text.trimmed().isEmpty() && !isNumber(text))
                add(Finding::NotANumber, text, control);
        if (isNumber(s.txtTaxe) && holdsAny(s.txtlbTaxe, u"'\"\\"))
            add(Finding::QuoteInSetting, s.txtlbTaxe, u"txtlbTaxe"_s);
        if (s.chGratuit)
            return;
        for (const ShippingMethod &method : s.fpSpread12) {
            if (!method.value.isEmpty() && !method.value.contains(u',') && !isNumber(method.value))
                add(Finding::NotANumber, method.name + u": "_s + method.value, u"fpSpread12"_s, method.row);
            if (method.name.trimmed().isEmpty() && !method.value.trimmed().isEmpty())
                add(Finding::ShippingWithoutName, method.value, u"fpSpread12"_s, method.row);
            if (holdsAny(method.name, u"'\"\\"))
                add(Finding::QuoteInSetting, method.name, u"fpSpread12"_s, method.row);
        }
    }

    /// The banner names the logo by its file name alone.
    void logo()
    {
        const ShopSettings &s = m_data.settings;
        if (s.txtFile.isEmpty())
            return;
        if (holdsAny(s.txtFile, u"/\\:*?\"<>|#%"))
            add(Finding::BadFileName, s.txtFile, u"txtFile"_s);
        const QString source = m_data.logoSource();
        if (source.isEmpty() || !QFileInfo(m_session.filePath(source)).isFile())
            add(Finding::PictureGone, s.txtFile, s.txtLogo.isEmpty() ? u"txtFile"_s : u"txtLogo"_s);
    }

    /// The lines that the contact page and the checkouts show.
    void company()
    {
        Result read;
        const std::vector<InfoRow> rows = CompanyInfo::read(m_session.gCnn, read);
        if (!read)
            add(Finding::CatalogueNotRead, read.message());
        for (const size_t position : {1, 2, 4, 5, 7, 8, 9}) {
            const QString label = position <= rows.size() ? rows[position - 1].sInfo : QString();
            const QString subject = QString::number(position) + u" ("_s + label + u')';
            if (m_data.info(int(position)).trimmed().isEmpty())
                add(Finding::EmptyCompanyLine, subject);
            else
                line(m_data.info(int(position)), subject);
        }
    }

    void groups()
    {
        int line = 0;
        for (const SelectionRow &row : m_selection.rows) {
            ++line;
            if (!row.ticked)
                continue;
            if (row.name.contains(u'\''))
                add(Finding::ApostropheInGroup, row.name, u"fpSpread2"_s, line);
            if (holdsAny(row.name, u"\"\\"))
                add(Finding::QuoteInName, row.name, u"fpSpread2"_s, line);
            if (losesCharacters(row.name))
                add(Finding::CharactersLost, row.name, u"fpSpread2"_s, line);
        }
    }

    QSet<qint64> publishedFamilies() const
    {
        QSet<qint64> families;
        for (const SelectionRow &group : m_selection.rows)
            for (int i = group.first; group.idCategorie && group.ticked && i <= group.last; ++i)
                if (const SelectionRow &row = m_selection.rows[size_t(i)]; row.ticked && row.idFamille)
                    families.insert(*row.idFamille);
        return families;
    }

    void products()
    {
        const QSet<qint64> families = publishedFamilies();
        for (const QString &name : {u"index"_s, u"contact"_s, u"terme"_s, u"expedition"_s, u"privacy"_s, u"checkout"_s,
                                    u"checkout_cc"_s, u"checkout_mf"_s, u"blank"_s, u"thanks"_s})
            m_pages.insert(name, name + u".htm"_s);
        for (const SelectionRow &group : m_selection.rows)
            for (int i = group.first; group.idCategorie && i <= group.last; ++i)
                if (const auto &family = m_selection.rows[size_t(i)].idFamille)
                    m_pages.insert(u"g%1_s%2"_s.arg(*group.idCategorie).arg(*family),
                                   u"g%1_s%2.htm"_s.arg(*group.idCategorie).arg(*family));
        const QString code = m_data.language.sLangueHtm;
        Reader row =
            m_session.gCnn.read(u"SELECT idProduit, idFamille, sRef, sNom"_s + code + u", sPrixVenteTTC, sObservation"_s
                                + code + u", idCategorie FROM T_PRODUIT"_s);
        while (row.next()) {
            if (row.isNull(1) || row.isNull(6))
                add(Finding::NoGroup, row.text(2));
            if (!families.contains(row.integer(1)))
                continue;
            const QString reference = row.text(2);
            m_published.insert(row.integer(0), reference);
            product(reference, row.text(3), row.text(4), row.text(5));
        }
        if (!row.result())
            add(Finding::CatalogueNotRead, row.result().message());
    }

    void product(const QString &reference, const QString &name, const QString &price, const QString &description)
    {
        if (name.trimmed().isEmpty())
            add(Finding::NoName, reference);
        if (price.trimmed().isEmpty())
            add(Finding::NoPrice, reference);
        else if (!isNumber(price))
            add(Finding::NotANumber, reference + u": "_s + price);
        else if (price.trimmed().toDouble() < 0)
            add(Finding::NegativePrice, reference + u", "_s + price);
        const bool breaksSearch =
            description.contains(u'\\') || (description.contains(u'"') && HtmlVersTexte(description).contains(u'"'));
        if (m_data.settings.chSearch && breaksSearch)
            add(Finding::QuoteInText, reference + u" / "_s + name);
        if (holdsAny(name, u"\"\\"))
            add(Finding::QuoteInName, reference + u" / "_s + name);
        if (name.contains(u'|'))
            add(Finding::BarInName, reference + u" / "_s + name);
        if (losesCharacters(name) || losesCharacters(description))
            add(Finding::CharactersLost, reference + u" / "_s + name);
        pageName(reference, name);
    }

    /// The reference without its strokes names the page.
    void pageName(const QString &reference, const QString &name)
    {
        constexpr qsizetype longest = 200;
        const QString page = QString(reference).remove(u'/');
        if (page.trimmed().isEmpty())
            return add(Finding::NoReference, name);
        if (holdsAny(reference, u"\\:*?\"<>|#%") || page != page.trimmed())
            add(Finding::BadReference, reference);
        if (holdsAny(reference, u"@'"))
            add(Finding::SignInReference, reference);
        if (losesCharacters(reference))
            add(Finding::CharactersInReference, reference);
        if (oneLine(reference) != reference)
            add(Finding::ControlCharacter, oneLine(reference) + u" / "_s + name);
        if (QFile::encodeName(page).size() > longest)
            add(Finding::LongReference, reference.left(40) + u"… / "_s + name);
        if (const auto other = m_pages.constFind(page); other != m_pages.constEnd())
            add(Finding::ReferencesMeet, *other + u", "_s + reference);
        else
            m_pages.insert(page, reference);
    }

    void pictures()
    {
        Reader row = m_session.gCnn.read(u"SELECT idProduit, sImage FROM T_PRODUIT_IMAGE WHERE iSmall = 0"_s);
        while (row.next()) {
            const auto product = m_published.constFind(row.integer(0));
            if (product == m_published.constEnd() || row.isNull(1))
                continue;
            const QString path = m_session.filePath(row.text(1));
            const QString name = path.mid(std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1);
            if (const QString other = m_pictures.value(name); other.isEmpty())
                m_pictures.insert(name, path);
            else if (other != path)
                add(Finding::PicturesOfOneName, *product + u" / "_s + name);
            if (!QFileInfo(path).isFile())
                add(Finding::PictureGone, *product + u" / "_s + path);
            if (holdsAny(name, u"#%?\"@'"))
                add(Finding::BadFileName, *product + u" / "_s + name);
            if (losesCharacters(name))
                add(Finding::CharactersInPictureName, *product + u" / "_s + name);
        }
        if (!row.result())
            add(Finding::CatalogueNotRead, row.result().message());
    }

    const ShopData &m_data;
    const Selection &m_selection;
    Session &m_session;
    std::vector<Finding> m_findings;
    QHash<qint64, QString> m_published; ///< references of the products that get a page
    QHash<QString, QString> m_pages;
    QHash<QString, QString> m_pictures;
};

QString frenchLine(Finding::Kind kind)
{
    switch (kind) {
    case Finding::NoMinimumOrder:
        return u"La commande minimum est vide : sans elle, le panier de la boutique ne marche pas. Mettez au moins 0."_s;
    case Finding::CommaInShippingPrice:
        return u"Le prix du transport « %1 » contient une virgule : écrivez-le avec un point."_s;
    case Finding::ApostropheInGroup:
        return u"Le nom de groupe « %1 » contient une apostrophe droite : le menu de la boutique ne marcherait pas."_s;
    case Finding::QuoteInName:
        return u"« %1 » contient un guillemet droit ou une barre inverse : la recherche de la boutique ne marcherait pas."_s;
    case Finding::BarInName:
        return u"Le nom « %1 » contient le signe « | », qui coupe sa ligne dans le panier."_s;
    case Finding::SignInReference:
        return u"La référence « %1 » contient une apostrophe ou un « @ », qui sont changés dans les listes."_s;
    case Finding::ReferencesMeet:
        return u"Ces références donnent la même page, la dernière reste : %1"_s;
    case Finding::PicturesOfOneName:
        return u"Deux images différentes portent le même nom de fichier, une seule reste : %1"_s;
    case Finding::PictureGone:
        return u"Image introuvable : %1"_s;
    case Finding::CharactersLost:
        return u"« %1 » contient des caractères que les pages ne peuvent pas montrer ; ils deviennent « ? »."_s;
    case Finding::NoName:
        return u"L’article %1 n’a pas de nom dans la langue de la boutique."_s;
    case Finding::NoPrice:
        return u"L’article %1 n’a pas de prix de vente."_s;
    case Finding::EmptyCompanyLine:
        return u"La ligne %1 des données de la société est vide ; elle paraît dans la page Contact."_s;
    case Finding::NoPaymentAccount:
        return u"Le compte PayPal est vide : les paiements n’arriveraient nulle part."_s;
    case Finding::DeliveredPaymentAccount:
        return u"Le compte PayPal est encore celui d’origine (%1) : mettez le vôtre."_s;
    case Finding::QuoteInText:
        return u"« %1 » contient un guillemet droit ou une barre inverse dans son texte : la recherche de la boutique ne marcherait pas."_s;
    case Finding::NotANumber:
        return u"« %1 » n’est pas un nombre écrit avec un point."_s;
    case Finding::QuoteInSetting:
        return u"« %1 » contient une apostrophe, un guillemet droit ou une barre inverse, qui couperait le panier ou la commande."_s;
    case Finding::BadReference:
        return u"La référence « %1 » ne peut pas donner un nom de page."_s;
    case Finding::NoGroup:
        return u"L’article %1 n’a pas de groupe ou de sous-groupe : il n’a pas de page dans la boutique."_s;
    case Finding::BadFileName:
        return u"« %1 » ne peut pas être un nom de fichier dans la boutique."_s;
    case Finding::ControlCharacter:
        return u"« %1 » contient un retour à la ligne ou un caractère invisible, qui couperait les pages de la boutique."_s;
    case Finding::NegativeMinimum:
        return u"La commande minimum est négative (%1). Mettez au moins 0."_s;
    case Finding::ShippingWithoutName:
        return u"Le prix du transport « %1 » n’a pas de nom : il ne sera pas enregistré."_s;
    case Finding::CharactersInReference:
        return u"La référence « %1 » contient des caractères que les pages ne peuvent pas montrer : leurs liens n’ouvriraient rien."_s;
    case Finding::CharactersInPictureName:
        return u"Le nom de fichier d’une image contient des caractères que les pages ne peuvent pas montrer, elle ne paraîtrait pas : %1"_s;
    case Finding::NoReference:
        return u"L’article « %1 » n’a pas de référence : sa page n’a pas de nom."_s;
    case Finding::LongReference:
        return u"La référence « %1 » est trop longue pour le nom d’une page."_s;
    case Finding::NegativePrice:
        return u"Le prix de vente est négatif : %1"_s;
    case Finding::CatalogueNotRead:
        return u"Le catalogue n’a pas pu être lu : %1"_s;
    }
    return {};
}

} // namespace

std::vector<Finding> checkShop(const ShopData &data, const Selection &selection, Session &session)
{
    return Check(data, selection, session).run();
}

QString describe(const Finding &finding, const Localisation &localisation)
{
    Localisation windows = localisation;
    windows.gbLangueCatalogue = false;
    const QString line = windows.Traduire(u"CHECK"_s, QString::number(finding.kind));
    return QString(line.isEmpty() ? frenchLine(finding.kind) : line).replace(u"%1"_s, finding.subject);
}
