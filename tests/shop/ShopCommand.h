#pragma once
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// Something that is done to an application folder before a run.
using Spoil = std::function<void(const QString &application)>;
Q_DECLARE_METATYPE(Spoil)

namespace Spoiling {

Spoil sql(const QString &script);
Spoil change(const QString &file, const std::function<QByteArray(const QByteArray &)> &change);
Spoil remove(const QString &file);
Spoil folderInsteadOf(const QString &file);

} // namespace Spoiling

/// `zelvantor-shop` over a copy of the delivered sample in a folder of its own.
class ShopCommand {
public:
    enum Extent {
        ADozenProducts, ///< with three of the pictured and one theme, which is soon copied
        WholeSample,
    };
    explicit ShopCommand(Extent extent = ADozenProducts);

    struct Run {
        int status = -1; ///< -1 after a crash
        QString out;
        QString err;

        /// Whether one line on stderr holds both.
        bool tells(const QString &piece, const QString &cause) const;
    };
    /// Runs the command on the copy. Fails the test when a page is left half written, when anything in the
    /// application folder has changed, or when a file lies outside of the output folder.
    Run run(const QStringList &more = {}, quint64 largestFile = 0) const;
    /// The bare run; no file larger than `largestFile` can be written, as on a disk that is full.
    Run start(const QStringList &arguments, quint64 largestFile = 0) const;
    /// The arguments that name the folders.
    QStringList folders() const;

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString application() const { return path(QStringLiteral("app")); }
    QString output() const { return path(QStringLiteral("out")); }
    bool written(const QString &name) const;

private:
    QTemporaryDir m_folder;
};
