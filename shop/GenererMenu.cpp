#include "shop/GenererMenu.h"

#include "shop/GrilleModeles.h"
#include "shop/PageParts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto lineEnd = "\r\n"_L1;

/// An entry without children of its own: "Menu3=new Array('text','contact.htm','',0);". Names go in without
/// any escaping: the quote rule that runs over all entries would not leave an escape standing anyway.
QString leaf(const QString &name, const QString &text, const QString &link, const QString &size = {})
{
    return name + u"=new Array('"_s + text + u"','"_s + link + u"','',0"_s + size + u");"_s + lineEnd;
}

/// The first entry of a level carries the height and width of all of them.
QString subSize(int position)
{
    return position == 1 ? u",20,150"_s : QString();
}

class GroupEntries {
public:
    GroupEntries(const Selection &selection, MenuScript &script) : m_selection(selection), m_script(script) {}

    QString all()
    {
        for (const SelectionRow &row : m_selection.rows)
            if (row.idCategorie && row.ticked)
                addGroup(row);
        return std::move(m_entries);
    }

private:
    void addGroup(const SelectionRow &group)
    {
        const QString name = u"Menu2_"_s + QString::number(++m_groups);
        // The count is that of all sub-groups, ticked or not; the engine takes the entries that exist.
        m_entries += name + u"=new Array('"_s + group.name.trimmed() + u"','blank.htm','',"_s
                     + QString::number(group.last - group.first + 1) + subSize(m_groups) + u");"_s + lineEnd;
        int position = 0;
        for (int i = group.first; i <= group.last; ++i) {
            const SelectionRow &row = m_selection.rows[size_t(i)];
            if (!row.idFamille || !row.ticked)
                continue;
            ++position;
            const QString file = u"g%1_s%2.htm"_s.arg(*group.idCategorie).arg(*row.idFamille);
            m_entries += leaf(name + u'_' + QString::number(position), row.name.trimmed(), file, subSize(position));
            m_script.listPages.push_back(
                {*group.idCategorie, *row.idFamille, group.name.trimmed(), row.name.trimmed(), file});
        }
    }

    const Selection &m_selection;
    MenuScript &m_script;
    QString m_entries;
    int m_groups = 0;
};

} // namespace

MenuScript GenererMenu(const ShopData &data, const Selection &selection)
{
    MenuScript script;
    const Traduction &words = data.words;
    int firstLevel = 5;
    QString entries = leaf(u"Menu1"_s, words(u"m1"_s), u"index.htm"_s, u",20,138"_s);
    // Here too all groups count, ticked or not.
    entries +=
        u"Menu2=new Array('"_s + words(u"m2"_s) + u"','','',"_s + QString::number(selection.groups) + u");"_s + lineEnd;
    entries += GroupEntries(selection, script).all();
    entries += leaf(u"Menu3"_s, words(u"m3"_s), u"contact.htm"_s);
    entries += leaf(u"Menu4"_s, words(u"m4"_s), u"managecart.html"_s);
    entries += leaf(u"Menu5"_s, words(u"m5"_s), u"checkout.htm"_s);
    const auto optional = [&](bool ticked, const QString &text, const QString &link) {
        if (ticked)
            entries += leaf(u"Menu"_s + QString::number(++firstLevel), text, link);
    };
    optional(data.settings.chTerme, words(u"m6"_s), u"terme.htm"_s);
    optional(data.settings.chExpedition, words(u"m7"_s), u"expedition.htm"_s);
    optional(data.settings.chPrivacy, words(u"m8"_s), u"privacy.htm"_s);

    script.page.fileName = u"exmplmenu_var.js"_s;
    script.page.text =
        applyReplacements(GrilleModeles::text(7, 1), {{u"[NB]"_s, QString::number(firstLevel)}}) + quoteRule(entries);
    return script;
}
