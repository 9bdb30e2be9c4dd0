#include "shop/ShopSettings.h"

#include "platform/CodePage.h"
#include "platform/WholeFile.h"

#include <QFile>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct TextKey {
    QString key;
    QString ShopSettings::*text;
};

struct TickKey {
    QString key;
    bool ShopSettings::*tick;
};

constexpr int loadedShippingRows = 6;

const std::array<TextKey, 17> &textKeys()
{
    static const std::array<TextKey, 17> keys = {{
        {u"TEMP"_s, &ShopSettings::lbTemp},
        {u"LANGHTM"_s, &ShopSettings::sLangueHtm},
        {u"TITRE"_s, &ShopSettings::txtTitre},
        {u"LOGO"_s, &ShopSettings::txtLogo},
        {u"FILE"_s, &ShopSettings::txtFile},
        {u"OPTFRAIS"_s, &ShopSettings::txtFrais},
        {u"LBFRAIS"_s, &ShopSettings::txtlbFrais},
        {u"OPTTAXE"_s, &ShopSettings::txtTaxe},
        {u"LBTAXE"_s, &ShopSettings::txtlbTaxe},
        {u"LFORM"_s, &ShopSettings::txtForm},
        {u"LDEST"_s, &ShopSettings::txtDest},
        {u"LEXP"_s, &ShopSettings::txtExp},
        {u"SYMBOL"_s, &ShopSettings::txtSymbol},
        {u"MINCMD"_s, &ShopSettings::txtMin},
        {u"PPEMAIL"_s, &ShopSettings::txtPPEmail},
        {u"PPRETOUR"_s, &ShopSettings::txtPPRetour},
        {u"PPDEVISE"_s, &ShopSettings::txtPPDevise},
    }};
    return keys;
}

const std::array<TickKey, 7> &tickKeys()
{
    static const std::array<TickKey, 7> keys = {{
        {u"OPTTERME"_s, &ShopSettings::chTerme},
        {u"OPTEXPEDITION"_s, &ShopSettings::chExpedition},
        {u"OPTPRIVACY"_s, &ShopSettings::chPrivacy},
        {u"OPTACHAT"_s, &ShopSettings::chAchat},
        {u"OPTPHOTO"_s, &ShopSettings::chPhoto},
        {u"OPTSEARCH"_s, &ShopSettings::chSearch},
        {u"OPTTRANS"_s, &ShopSettings::chGratuit},
    }};
    return keys;
}

const std::array<TextKey, 6> &textFiles()
{
    static const std::array<TextKey, 6> files = {{
        {u"accueil.txt"_s, &ShopSettings::txtmessage},
        {u"modalite.txt"_s, &ShopSettings::txtModalite},
        {u"expedition.txt"_s, &ShopSettings::txtExpedition},
        {u"privacy.txt"_s, &ShopSettings::txtPrivacy},
        {u"keyword.txt"_s, &ShopSettings::txtKeyword},
        {u"des.txt"_s, &ShopSettings::txtDescription},
    }};
    return files;
}

void loadShipping(const Session &session, ShopSettings &settings)
{
    for (int n = 1; n <= loadedShippingRows; ++n) {
        const auto stored = [&](const QString &stem) {
            return session.settings.value(SettingsKey::application, SettingsKey::section, stem + QString::number(n));
        };
        const QString name = stored(u"SNT"_s);
        if (!name.isEmpty())
            settings.fpSpread12.push_back({name, stored(u"SVT"_s)});
    }
}

void fillDefaults(const Session &session, ShopSettings &settings)
{
    const auto whenEmpty = [](QString &text, const QString &value) {
        if (text.isEmpty())
            text = value;
    };
    whenEmpty(settings.txtTitre, session.gInfo.value(0));
    whenEmpty(settings.txtPPEmail, DeliveredPayment::account);
    whenEmpty(settings.txtPPRetour, DeliveredPayment::returnPage);
    whenEmpty(settings.txtPPDevise, session.gsMonnaie);
    whenEmpty(settings.txtSymbol, u"€"_s);
    whenEmpty(settings.sLangueHtm, session.localisation.gsLangue);
    whenEmpty(settings.lbTemp, u"1"_s);
}

void loadTextFiles(const Session &session, ShopSettings &settings, RunReport &report)
{
    for (const TextKey &entry : textFiles()) {
        QFile file(session.applicationFolder + u'/' + entry.key);
        if (!file.exists())
            continue;
        if (file.open(QIODevice::ReadOnly))
            settings.*entry.text = CodePage::decode(file.readAll());
        else
            report.add(Incident::TextFile, entry.key, file.errorString());
    }
}

} // namespace

ShopSettings AfficherParam(const Session &session, RunReport &report)
{
    const auto stored = [&session](const QString &key, const QString &absent) {
        return session.settings.value(SettingsKey::application, SettingsKey::section, key, absent);
    };
    ShopSettings settings;
    for (const TextKey &entry : textKeys())
        settings.*entry.text = stored(entry.key, settings.*entry.text);
    for (const TickKey &entry : tickKeys()) {
        bool isNumber = false;
        const int number = stored(entry.key, {}).toInt(&isNumber);
        if (isNumber)
            settings.*entry.tick = number != 0;
    }
    fillDefaults(session, settings);
    loadShipping(session, settings);
    loadTextFiles(session, settings, report);
    return settings;
}

Result SaveParam(const ShopSettings &settings, Session &session, RunReport *report)
{
    Result first;
    const auto note = [&first, report](Incident::Kind kind, const QString &piece, const Result &result) {
        if (result)
            return;
        if (first)
            first = {result.number(), piece + u": "_s + result.text()};
        if (report)
            report->add(kind, piece, result.text());
    };
    const auto save = [&](const QString &key, const QString &value) {
        note(Incident::SettingsFile, SettingsKey::application + u".ini"_s,
             session.settings.save(SettingsKey::application, SettingsKey::section, key, value));
    };
    for (const TextKey &entry : textKeys())
        save(entry.key, settings.*entry.text);
    for (const TickKey &entry : tickKeys())
        save(entry.key, settings.*entry.tick ? u"1"_s : u"0"_s);
    int row = 0;
    for (const ShippingMethod &method : settings.fpSpread12) {
        if (method.name.isEmpty())
            continue;
        ++row;
        save(u"SNT"_s + QString::number(row), method.name);
        save(u"SVT"_s + QString::number(row), method.value);
    }
    for (const TextKey &entry : textFiles())
        note(Incident::FileNotWritten, entry.key,
             WholeFile::replace(session.applicationFolder + u'/' + entry.key, CodePage::encode(settings.*entry.text)));
    return first;
}
