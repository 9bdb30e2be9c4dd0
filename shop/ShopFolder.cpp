#include "shop/ShopFolder.h"

#include "platform/CodePage.h"
#include "platform/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

const QString imagesFolder = u"images/"_s;

/// The content of a file. Null with the cause when it can't be read; a folder can't.
QByteArray readWhole(const QString &path, QString &cause)
{
    QFile file(path);
    if (QFileInfo(path).isDir()) {
        cause = u"Is a directory"_s;
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        cause = file.errorString();
        return {};
    }
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        cause = file.errorString();
        return {};
    }
    return bytes.isNull() ? QByteArray("") : bytes;
}

/// Makes a folder with its parents; gives the cause of a failure, or nothing.
QString makeFolder(const QString &path)
{
    std::error_code failed;
    const std::filesystem::path folder(path.toStdU16String());
    std::filesystem::create_directories(folder, failed);
    if (!failed && !std::filesystem::is_directory(folder, failed) && !failed)
        failed = std::make_error_code(std::errc::not_a_directory);
    return failed ? QString::fromStdString(failed.message()) : QString();
}

QStringList assetsOf(const ShopData &data)
{
    QStringList names = {u"menu_com.js"_s, u"store.css"_s, u"blank.htm"_s};
    const QString script = languageScript(data.language.sLangueHtm);
    if (!script.isEmpty())
        names << script;
    const QStringList pictures = {u"topbkg"_s + data.settings.lbTemp,
                                  u"blackline"_s,
                                  u"motif_m"_s,
                                  u"titre_left"_s,
                                  u"titre_motif"_s,
                                  u"titre_right"_s,
                                  u"bluebar1"_s,
                                  u"shopcart"_s,
                                  u"spacer"_s,
                                  u"pp"_s,
                                  u"cards"_s,
                                  u"mail"_s};
    for (const QString &picture : pictures)
        names << imagesFolder + picture + u".gif"_s;
    for (const QString &arrow : {u"tri"_s, u"tridown"_s, u"trileft"_s})
        names << arrow + u".gif"_s;
    return names;
}

/// By the first bytes, as browsers tell.
bool isPicture(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(512);
    return start.startsWith("GIF8") || start.startsWith("\xFF\xD8\xFF") || start.startsWith("\x89PNG")
           || start.startsWith("BM") || (start.startsWith("RIFF") && start.mid(8, 4) == "WEBP")
           || start.contains("<svg");
}

} // namespace

ShopFolder::ShopFolder(QString path, RunReport &report) : m_path(std::move(path)), m_report(report) {}

bool ShopFolder::prepare(const QString &imgFolder)
{
    if (const QString cause = makeFolder(m_path); !cause.isEmpty()) {
        m_report.add(Incident::FolderNotMade, m_path, cause);
        return false;
    }
    markOldFiles();
    if (const QString cause = makeFolder(m_path + u"/images"_s); !cause.isEmpty())
        m_report.add(Incident::FolderNotMade, imagesFolder, cause);
    if (!QFileInfo(imgFolder).isDir())
        m_report.add(Incident::AssetNotCopied, u"img"_s, u"No such file or directory"_s);
    copyAssets(imgFolder, {u"*.gif"_s, u"buy.*"_s}, imagesFolder);
    // The plain pages travel with the scripts: the menu and the cart name them, and no generator writes them.
    copyAssets(imgFolder, {u"*.js"_s, u"tri*.gif"_s, u"*.css"_s, u"*.htm"_s}, {});
    return true;
}

void ShopFolder::markOldFiles()
{
    const QDir folder(m_path);
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden | QDir::System))
        m_oldFiles.insert(name);
    const QDir images(m_path + u'/' + imagesFolder);
    for (const QString &name : images.entryList(QDir::Files | QDir::Hidden))
        if (WholeFile::isTemporaryName(name))
            QFile::remove(images.filePath(name));
}

void ShopFolder::copyAssets(const QString &imgFolder, const QStringList &patterns, const QString &subFolder)
{
    const QDir folder(imgFolder);
    for (const QString &name : folder.entryList(patterns, QDir::Files)) {
        copy(folder.filePath(name), subFolder + name, Incident::AssetNotCopied);
        m_assets.insert(subFolder + name, name);
    }
}

void ShopFolder::copyLogo(const QString &path)
{
    if (!path.trimmed().isEmpty())
        copy(path, imagesFolder + u"logo.gif"_s, Incident::LogoNotCopied);
}

void ShopFolder::copyBannerLogo(const QString &sourcePath, const QString &fileName)
{
    if (!isAcceptable(fileName))
        m_report.add(Incident::LogoNotCopied, fileName, u"no file name"_s);
    else if (m_assets.contains(imagesFolder + fileName))
        m_report.add(Incident::LogoNotCopied, fileName, u"File exists"_s); // a picture of every shop
    else if (QFileInfo(sourcePath).isFile() && !isPicture(sourcePath))
        m_report.add(Incident::LogoNotCopied, fileName, u"not a picture"_s);
    else if (copy(sourcePath, imagesFolder + fileName, Incident::LogoNotCopied))
        m_pictures.insert(fileName, sourcePath);
}

void ShopFolder::checkAssets(const ShopData &data)
{
    for (const QString &name : assetsOf(data))
        if (!QFileInfo::exists(m_path + u'/' + name))
            m_report.add(Incident::AssetNotCopied, name, u"No such file or directory"_s);
}

void ShopFolder::removeOldFiles()
{
    for (const QString &name : std::as_const(m_oldFiles)) {
        const QString path = m_path + u'/' + name;
        if (!(QFile::permissions(path) & QFile::WriteOwner))
            continue;
        QFile file(path);
        if (!file.remove())
            m_report.add(Incident::OldFileNotRemoved, name, file.errorString());
    }
    m_oldFiles.clear();
}

/// References become file names. What any of the systems a shop may land on takes for a path, a drive or a wild
/// card is refused.
bool ShopFolder::isAcceptable(const QString &fileName) const
{
    static const QString refused = u"/\\:*?\"<>|"_s;
    return !fileName.isEmpty() && fileName != u"."_s && fileName != u".."_s
           && std::none_of(fileName.begin(), fileName.end(), [](QChar c) { return c < u' ' || refused.contains(c); });
}

void ShopFolder::beginRun()
{
    m_origins = m_assets;
    m_pictures.clear();
    m_copied.clear();
    m_clashes.clear();
    m_pages = 0;
    m_unchanged = 0;
}

bool ShopFolder::take(const Page &page)
{
    if (!isAcceptable(page.fileName)) {
        m_report.add(Incident::FileNameRefused, page.fileName, page.origin);
        return false;
    }
    if (const auto earlier = m_origins.constFind(page.fileName); earlier == m_origins.constEnd())
        m_origins.insert(page.fileName, page.origin);
    else if (*earlier != page.origin)
        m_report.add(Incident::PageWrittenTwice, page.fileName, *earlier + u", "_s + page.origin);
    m_bytes.resize(0);
    if (const int lost = CodePage::append(m_bytes, page.text))
        m_report.add(Incident::CharactersLost, page.fileName, QString::number(lost));
    if (write(page.fileName, m_bytes))
        ++m_pages;
    return true;
}

bool ShopFolder::write(const QString &fileName, QByteArrayView bytes)
{
    m_oldFiles.remove(fileName);
    const QString path = m_path + u'/' + fileName;
    if (WholeFile::holds(path, bytes)) {
        ++m_unchanged;
        return true;
    }
    const Result written = WholeFile::write(path, bytes);
    if (!written)
        m_report.add(Incident::FileNotWritten, fileName, written.text());
    return bool(written);
}

void ShopFolder::picture(const QString &sourcePath, const QString &fileName)
{
    if (m_pictures.value(fileName) == sourcePath)
        return;
    if (!isAcceptable(fileName)) {
        m_report.add(Incident::PictureNotCopied, sourcePath, u"no file name"_s);
        return;
    }
    yield();
    const QString earlier = m_pictures.value(fileName);
    if (!earlier.isEmpty() && !m_clashes.contains(fileName)) {
        QString cause;
        if (readWhole(earlier, cause) != readWhole(sourcePath, cause)) {
            m_clashes.insert(fileName);
            m_report.add(Incident::PicturesOfOneName, fileName, earlier + u", "_s + sourcePath);
        }
    }
    if (copy(sourcePath, imagesFolder + fileName, Incident::PictureNotCopied))
        m_copied.insert(fileName);
    m_pictures.insert(fileName, sourcePath);
    yield();
}

bool ShopFolder::copy(const QString &sourcePath, const QString &targetName, Incident::Kind incident)
{
    QString cause;
    const QByteArray bytes = readWhole(sourcePath, cause);
    if (!bytes.isNull())
        return write(targetName, bytes);
    m_report.add(incident, sourcePath, cause);
    return false;
}
