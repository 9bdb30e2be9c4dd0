#include "platform/WholeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace {

constexpr auto temporaryStem = ".zelvantor-part-"_L1;

QString temporaryPath(const QString &path)
{
    static const QString name = temporaryStem + QString::number(QCoreApplication::applicationPid());
    return path.left(path.lastIndexOf(u'/') + 1) + name;
}

std::filesystem::path native(const QString &path)
{
    return std::filesystem::path(path.toStdU16String());
}

} // namespace

Result WholeFile::write(const QString &path, QByteArrayView bytes)
{
    const QString temporary = temporaryPath(path);
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
    file.close();
    if (done != bytes.size() || file.error() != QFileDevice::NoError) {
        if (done == bytes.size())
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

Result WholeFile::replace(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {1, file.errorString()};
    // The commit alone passes over a disk that fills while the last bytes are written.
    if (file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
        return {1, file.errorString()};
    return {};
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
