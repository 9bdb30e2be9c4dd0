#include "data/SchemaSteps.h"
#include "platform/WholeFile.h"
#include "shop/ShopCheck.h"
#include "shop/ShopRun.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int wholeShop = 0;
constexpr int pieceMissing = 1;
constexpr int unusable = 2;

void say(std::FILE *where, const QString &line)
{
    const QByteArray bytes = (line + u'\n').toLocal8Bit();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), where);
}

struct Arguments {
    QString applicationFolder;
    QString settingsFolder;
    QString outputFolder;
    std::optional<QString> language;
    bool outputNamed = false;
    bool checkOnly = false;
};

std::optional<Arguments> readArguments(const QCoreApplication &application, int &status)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Génère la boutique en ligne d’un catalogue, sans fenêtre."_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Montre cette aide."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Montre la version."_s);
    const QCommandLineOption applicationFolder(u"app-folder"_s, u"Dossier de l’application (base, langues, images)."_s,
                                               u"DIR"_s);
    const QCommandLineOption settingsFolder(u"settings"_s, u"Dossier des réglages."_s, u"DIR"_s);
    const QCommandLineOption outputFolder(
        u"out"_s, u"Dossier de la boutique ; sans lui, « temp » dans le dossier de l’application."_s, u"DIR"_s);
    const QCommandLineOption language(u"language"_s, u"Langue de la boutique (FR, EN, NL, DE, IT, ES)."_s, u"CODE"_s);
    const QCommandLineOption check(u"check"_s, u"Contrôle seulement la boutique et n’écrit rien."_s);
    parser.addOptions({help, version, applicationFolder, settingsFolder, outputFolder, language, check});
    status = unusable;
    if (!parser.parse(application.arguments())) {
        say(stderr, parser.errorText());
        return {};
    }
    if (parser.isSet(help) || parser.isSet(version)) {
        say(stdout, parser.isSet(help) ? parser.helpText().trimmed()
                                       : u"zelvantor-shop "_s + QCoreApplication::applicationVersion());
        status = wholeShop;
        return {};
    }
    if (!parser.positionalArguments().isEmpty()) {
        say(stderr, u"Argument inattendu : %1"_s.arg(parser.positionalArguments().first()));
        return {};
    }
    const auto folder = [&parser](const QCommandLineOption &option, const QString &absent) {
        return parser.isSet(option) ? QDir(parser.value(option)).absolutePath() : absent;
    };
    Arguments arguments;
    arguments.applicationFolder =
        folder(applicationFolder, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    arguments.settingsFolder = folder(settingsFolder, SettingsStore::userFolder());
    arguments.outputFolder = folder(outputFolder, arguments.applicationFolder + u"/temp"_s);
    arguments.outputNamed = parser.isSet(outputFolder);
    arguments.checkOnly = parser.isSet(check);
    if (parser.isSet(language))
        arguments.language = parser.value(language).toUpper();
    return arguments;
}

/// A run empties its folder first. One that a person names, that holds files and was never written by a run is
/// surely a mistake. A run that was cut off has left nothing but fixed assets, perhaps unfinished.
bool isForeign(const QString &folder, const QString &imgFolder)
{
    const QDir dir(folder);
    if (dir.exists(u"nopcart.js"_s) || dir.exists(u"exmplmenu_var.js"_s))
        return false;
    const QStringList names = dir.entryList(QDir::Files | QDir::Hidden);
    const bool isBegun = dir.exists(u"images"_s); // the folder of the fixed assets themselves has none
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        return !isBegun || (!WholeFile::isTemporaryName(name) && !QFileInfo::exists(imgFolder + u'/' + name));
    });
}

bool isKnownLanguage(const QString &code, Connection &connection)
{
    Result result;
    for (const Language &language : readLanguages(connection, result))
        if (language.code == code)
            return true;
    return false;
}

Selection readSelection(Session &session, RunReport &report)
{
    Result read;
    Selection selection = AfficherFamille(session.gCnn, read);
    if (!read)
        report.add(Incident::StoreNotRead, u"AfficherFamille"_s, read.message());
    return selection;
}

int finish(const RunReport &report, const Session &session, const QString &lastLine)
{
    for (const Incident &incident : report.incidents())
        say(stderr, describe(incident, session.localisation));
    if (!lastLine.isEmpty())
        say(stdout, lastLine);
    return report.incidents().empty() ? wholeShop : pieceMissing;
}

/// Prints the findings, one a line; they are advice and do not count as missing pieces.
int check(const ShopData &data, Session &session, RunReport &report)
{
    const Localisation texts = session.localisation.held();
    for (const Finding &finding : checkShop(data, readSelection(session, report), session))
        say(stdout, describe(finding, texts));
    return finish(report, session, {});
}

int generate(const Arguments &arguments, const ShopData &data, Session &session, RunReport &report)
{
    QElapsedTimer timer;
    timer.start();
    ShopFolder folder(arguments.outputFolder, report);
    if (folder.prepare(arguments.applicationFolder + u"/img"_s)) {
        folder.copyLogo(data.info(13).trimmed().isEmpty() ? QString() : session.filePath(data.info(13)));
        folder.checkAssets(data);
        genererBoutique(data, readSelection(session, report), session, folder, report);
        folder.removeOldFiles();
    }
    return finish(report, session,
                  u"%1 : %2 pages, %3 images, %4 s"_s.arg(folder.path())
                      .arg(folder.pages())
                      .arg(folder.pictures())
                      .arg(double(timer.elapsed()) / 1000, 0, 'f', 2));
}

int run(const Arguments &arguments)
{
    SettingsStore settings(arguments.settingsFolder);
    const Clock clock;
    Session session(settings, clock, arguments.applicationFolder);
    session.readSettings();
    if (!arguments.checkOnly && arguments.outputNamed
        && isForeign(arguments.outputFolder, arguments.applicationFolder + u"/img"_s)) {
        say(stderr, u"Le dossier %1 contient des fichiers qui ne sont pas d’une boutique ; rien n’a été fait."_s.arg(
                        arguments.outputFolder));
        return unusable;
    }
    if (const Result opened = session.gCnn.open(connectionText(session.gsDbPath)); !opened) {
        say(stderr, u"Base de données %1 : %2"_s.arg(session.gsDbPath, opened.message()));
        return unusable;
    }
    if (SchemaSteps::of(session.gCnn) > SchemaSteps::current()) {
        say(stderr, u"Base de données %1 : écrite par une version plus récente du programme"_s.arg(session.gsDbPath));
        return unusable;
    }
    if (arguments.language && !isKnownLanguage(*arguments.language, session.gCnn)) {
        say(stderr, u"Langue inconnue : %1"_s.arg(*arguments.language));
        return unusable;
    }

    RunReport report;
    const ShopData data = readShopData(session, arguments.language, report);
    return arguments.checkOnly ? check(data, session, report) : generate(arguments, data, session, report);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"zelvantor"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELVANTOR_VERSION));
    int status = wholeShop;
    const std::optional<Arguments> arguments = readArguments(application, status);
    return arguments ? run(*arguments) : status;
}
