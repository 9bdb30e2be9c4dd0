#include "tests/support/Files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <filesystem>

void Files::write(const QString &path, const QByteArray &bytes)
{
    QVERIFY2(QDir().mkpath(QFileInfo(path).path()), qPrintable(path));
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray Files::read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        QTest::qFail(qPrintable(path + QStringLiteral(" can't be read")), __FILE__, __LINE__);
    return file.readAll();
}

void Files::copyFolder(const QString &from, const QString &to)
{
    std::error_code failed;
    std::filesystem::copy(from.toStdU16String(), to.toStdU16String(), std::filesystem::copy_options::recursive, failed);
    QVERIFY2(!failed, failed.message().c_str());
}

QMap<QString, QByteArray> Files::tree(const QString &folder)
{
    QMap<QString, QByteArray> found;
    const QDir root(folder);
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        found.insert(root.relativeFilePath(path), read(path));
    }
    return found;
}
