#include "tests/shop/ShopCommand.h"

#include "platform/Store.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Store> opened(const QString &application)
{
    Result result;
    auto store = Store::open(application + u"/zelvantor.mdb"_s, result);
    if (!store)
        qFatal("%s", qPrintable(result.message()));
    return store;
}

/// Copies the sample. Other tests see that its pictures are all there; for one that is not, a stand-in does.
void copySample(const QString &application)
{
    Files::copyFolder(QStringLiteral(ZELVANTOR_SHARE "/sample"), application);
    const auto store = opened(application);
    Reader row =
        store->read(u"SELECT sImage FROM T_PRODUIT_IMAGE UNION SELECT sValeur FROM REF_INFO WHERE idInfo = 13"_s);
    while (row.next())
        if (const QString path = application + u'/' + row.text(0); !QFile::exists(path))
            Files::write(path, row.text(0).toUtf8());
}

void reduce(const QString &application)
{
    Spoiling::sql(u"DELETE FROM T_PRODUIT WHERE idProduit > 12; "
                  "DELETE FROM T_PRODUIT_IMAGE WHERE idProduit > 3 OR iSmall = 1;"_s)(application);
    QSet<QString> kept = {u"topbkg1.gif"_s};
    const auto store = opened(application);
    Reader row = store->read(u"SELECT sImage FROM T_PRODUIT_IMAGE"_s);
    while (row.next())
        kept << row.text(0).section(u'/', -1);
    for (const QString &folder : {u"/pictures"_s, u"/img"_s}) {
        QDir dir(application + folder);
        for (const QString &name : dir.entryList({u"*.jpg"_s, u"topbkg*"_s}, QDir::Files))
            if (!kept.contains(name))
                dir.remove(name);
    }
}

const QString &dozen()
{
    static const QTemporaryDir folder;
    static const QString application = [] {
        const QString path = folder.filePath(u"app"_s);
        copySample(path);
        reduce(path);
        return path;
    }();
    return application;
}

bool isWhole(const QString &name, const QByteArray &bytes)
{
    static const QRegularExpression page(u"\\.html?$"_s);
    static const QRegularExpression script(u"^(nopcart|searchdb|exmplmenu_var)\\.js$"_s);
    if (name.contains(page))
        return bytes.trimmed().endsWith("</html>");
    if (name.contains(script))
        return bytes.endsWith(";\r\n") || bytes.endsWith("}\r\n");
    return !name.contains(u"-part-"_s);
}

} // namespace

Spoil Spoiling::sql(const QString &script)
{
    return [script](const QString &application) {
        const Result done = opened(application)->executeScript(script);
        QVERIFY2(done, qPrintable(done.message()));
    };
}

Spoil Spoiling::change(const QString &file, const std::function<QByteArray(const QByteArray &)> &change)
{
    return [=](const QString &application) {
        const QString path = application + u'/' + file;
        Files::write(path, change(Files::read(path)));
    };
}

Spoil Spoiling::remove(const QString &file)
{
    return [=](const QString &application) { QVERIFY(QFile::remove(application + u'/' + file)); };
}

Spoil Spoiling::folderInsteadOf(const QString &file)
{
    return [=](const QString &application) {
        QVERIFY(QFile::remove(application + u'/' + file));
        QVERIFY(QDir().mkpath(application + u'/' + file));
    };
}

ShopCommand::ShopCommand(Extent extent)
{
    if (extent == WholeSample)
        copySample(application());
    else
        Files::copyFolder(dozen(), application());
}

bool ShopCommand::Run::tells(const QString &piece, const QString &cause) const
{
    const QStringList lines = err.split(u'\n');
    return std::any_of(lines.begin(), lines.end(),
                       [&](const QString &line) { return line.contains(piece) && line.contains(cause); });
}

QStringList ShopCommand::folders() const
{
    return {u"--app-folder"_s, application(), u"--settings"_s, application() + u"/settings"_s, u"--out"_s, output()};
}

bool ShopCommand::written(const QString &name) const
{
    return QFileInfo(output() + u'/' + name).isFile();
}

ShopCommand::Run ShopCommand::start(const QStringList &arguments, quint64 largestFile) const
{
    QProcess process;
    if (largestFile > 0) {
        process.setChildProcessModifier([largestFile] {
            const rlimit limit{rlim_t(largestFile), rlim_t(largestFile)};
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN);
        });
    }
    process.start(QStringLiteral(ZELVANTOR_SHOP), arguments);
    Run run;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit)
        run.status = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

ShopCommand::Run ShopCommand::run(const QStringList &more, quint64 largestFile) const
{
    const auto before = Files::tree(application());
    const Run run = start(folders() + more, largestFile);
    const auto files = Files::tree(output());
    for (auto it = files.begin(); it != files.end(); ++it)
        if (!isWhole(it.key(), it.value()))
            QTest::qFail(qPrintable(it.key() + u" is not whole"_s), __FILE__, __LINE__);
    if (Files::tree(application()) != before)
        QTest::qFail("the application folder has changed", __FILE__, __LINE__);
    for (const QString &name : QDir(path({})).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        if (name != u"app"_s && name != u"out"_s)
            QTest::qFail(qPrintable(name + u" lies outside of the output folder"_s), __FILE__, __LINE__);
    return run;
}
