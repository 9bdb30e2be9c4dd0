#include "platform/WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <system_error>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto temporaryStem = ".zelvantor-part-"_L1;

std::filesystem::path native(const QString &path)
{
    return {path.toStdU16String()};
}

/// Renames the whole temporary file over the target, or leaves no trace of it.
Result put(const QString &path, QByteArrayView bytes, bool isKept)
{
    const QString temporary = WholeFile::temporaryPath(path);
    QFile file(temporary);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return {1, file.errorString()};
    // A disk that fills takes a part and names the cause only when it is asked for the rest.
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 taken = file.write(bytes.data() + done, bytes.size() - done);
        if (taken <= 0)
            break;
        done += taken;
    }
    QString cause = file.errorString();
    bool isWhole = done == bytes.size();
    if (isWhole && isKept) {
        if (QFileInfo::exists(path))
            file.setPermissions(QFile::permissions(path));
        isWhole = ::fsync(file.handle()) == 0;
        cause = qt_error_string();
    }
    file.close();
    if (!isWhole || file.error() != QFileDevice::NoError) {
        if (isWhole)
            cause = file.errorString();
        file.remove();
        return {1, cause};
    }
    std::error_code failed;
    std::filesystem::rename(native(temporary), native(path), failed);
    if (failed) {
        QFile::remove(temporary);
        return {1, QString::fromStdString(failed.message())};
    }
    return {};
}

/// Whether the program that left a temporary file still runs.
bool isRunning(const QString &temporaryName)
{
    const int process = temporaryName.mid(temporaryStem.size()).toInt();
    return process > 0 && (::kill(process, 0) == 0 || errno == EPERM);
}

} // namespace

QString WholeFile::temporaryPath(const QString &path)
{
    static const QString name = temporaryStem + QString::number(QCoreApplication::applicationPid());
    return path.left(path.lastIndexOf(u'/') + 1) + name;
}

Result WholeFile::write(const QString &path, QByteArrayView bytes)
{
    return put(path, bytes, false);
}

Result WholeFile::replace(const QString &path, const QByteArray &bytes)
{
    const QFileInfo target(path);
    return put(target.isSymLink() ? target.symLinkTarget() : path, bytes, true);
}

void WholeFile::clearTemporaries(const QString &folder)
{
    QDir dir(folder);
    for (const QString &name : dir.entryList({temporaryStem + u'*'}, QDir::Files | QDir::Hidden))
        if (!isRunning(name))
            dir.remove(name);
}

bool WholeFile::holds(const QString &path, QByteArrayView bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.size() != bytes.size())
        return false;
    return file.readAll() == bytes;
}

bool WholeFile::isTemporaryName(const QString &fileName)
{
    return fileName.startsWith(temporaryStem);
}
