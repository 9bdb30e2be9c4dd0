#include "shop/ShopRun.h"

#include "platform/IniFile.h"
#include "shop/GenererCart.h"
#include "shop/GenererCheck.h"
#include "shop/GenererContact.h"
#include "shop/GenererHome.h"
#include "shop/GenererMenu.h"
#include "shop/GenererPages.h"
#include "shop/GenererSearch.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Writes the pages and keeps the plain text of those that the search knows.
class IndexingOutput : public ShopOutput {
public:
    IndexingOutput(ShopFolder &folder, SearchIndex *index) : m_folder(folder), m_index(index) {}

    void page(const Page &page) override
    {
        // A page that is refused its name must not be found either.
        if (m_folder.take(page) && m_index && page.indexed)
            m_index->add(page.fileName, page.text);
    }
    void picture(const QString &sourcePath, const QString &fileName) override
    {
        m_folder.picture(sourcePath, fileName);
    }

private:
    ShopFolder &m_folder;
    SearchIndex *m_index;
};

} // namespace

ShopData readShopData(Session &session, const std::optional<QString> &language, RunReport &report)
{
    const auto note = [&report](const QString &reader, const Result &result) {
        if (!result)
            report.add(Incident::StoreNotRead, reader, result.message());
    };
    ShopData data;
    Result languagesRead;
    const std::vector<Language> languages = readLanguages(session.gCnn, languagesRead);
    note(u"RemplirCB"_s, languagesRead);
    note(u"AfficherInfo"_s, AfficherInfo(session));
    if (const Result readable = session.settings.check(SettingsKey::application); !readable)
        report.add(Incident::SettingsFile, SettingsKey::application + u".ini"_s, readable.text());

    data.settings = AfficherParam(session, report);
    if (language)
        data.settings.sLangueHtm = *language;
    data.language = ShopLanguage::choose(languages, data.settings.sLangueHtm, session.localisation.gsLangue);
    session.localisation.gbLangueCatalogue = true;
    session.localisation.gsLangueCatalogue = data.language.gsLangueCatalogue;
    data.words = Traduction::read(session.localisation);
    checkShopLanguage(data, session, report);
    data.gInfo = session.gInfo;
    data.gsLogin = session.gsLogin;
    data.gsMonnaie = session.gsMonnaie;
    data.year = session.clock.today().year();
    return data;
}

void checkShopLanguage(const ShopData &data, const Session &session, RunReport &report)
{
    const QString path = session.localisation.fileName(data.language.gsLangueCatalogue);
    const QString name = QFileInfo(path).fileName();
    IniFile file;
    if (const Result loaded = file.load(path); !loaded)
        report.add(Incident::LanguageFile, name, loaded.text());
    for (const QString &remark : file.remarks())
        report.add(Incident::LanguageFile, name, remark);
    if (const int missing = data.words.missing())
        report.add(Incident::LanguageFile, name, u"texts missing in [CATALOG]: "_s + QString::number(missing));
}

void genererBoutique(const ShopData &data, const Selection &selection, Session &session, ShopFolder &folder,
                     RunReport &report)
{
    folder.beginRun();
    if (const QString source = data.logoSource(); !source.isEmpty() && !data.settings.txtFile.isEmpty())
        folder.copyBannerLogo(session.filePath(source), data.settings.txtFile);
    SearchIndex index(data.settings.txtTitre);
    IndexingOutput output(folder, data.settings.chSearch ? &index : nullptr);
    const auto writeAll = [&output](const std::vector<Page> &pages) {
        for (const Page &page : pages)
            output.page(page);
    };
    // The order counts: the fixed pages open the search index, and the menu says which list pages there are.
    writeAll(GenererCart(data));
    writeAll(GenererCheck(data));
    writeAll(GenererHome(data));
    writeAll(GenererContact(data));
    const MenuScript menu = GenererMenu(data, selection);
    output.page(menu.page);
    CatalogueReader catalogue(session, report);
    GenererPages(data, menu.listPages, catalogue, output);
    if (index.lost() > 0)
        report.add(Incident::CharactersLost, u"searchdb.js"_s, QString::number(index.lost()));
    if (data.settings.chSearch)
        folder.write(u"searchdb.js"_s, GenererSearch(index));
}
