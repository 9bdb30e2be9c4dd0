#pragma once
#include "shop/Page.h"
#include "shop/RunReport.h"
#include "shop/ShopData.h"

#include <QHash>
#include <QSet>
#include <functional>

/// The output folder of a shop, and the one place that writes into it. Files go out whole, in the 8-bit code
/// page; one that already holds these very bytes is left alone. Whatever can't be written is reported and
/// passed over. No name leads out of the folder.
class ShopFolder : public ShopOutput {
public:
    ShopFolder(QString path, RunReport &report);

    /// Prepares the folder as the opening of the shop screen does: marks every file that lies directly in it as
    /// old, makes `images`, copies the fixed assets from `imgFolder` and the logo. Old files go with
    /// `removeOldFiles`, so that a run over an unchanged shop need not write every page again.
    bool prepare(const QString &imgFolder);
    /// Copies the company's logo to `images/logo.gif`; a blank path means that there is none.
    void copyLogo(const QString &path);
    /// Copies the logo of the banner to `images` under the name that the pages give it.
    void copyBannerLogo(const QString &sourcePath, const QString &fileName);
    /// Reports each asset that the pages of this shop load and that is not there.
    void checkAssets(const ShopData &data);
    /// Removes what `prepare` marked and nothing wrote since. Files that their owner may not write stay.
    void removeOldFiles();

    /// Forgets what an earlier run wrote, which the counts and the clashes of names would otherwise hold.
    void beginRun();

    void page(const Page &page) override { (void)take(page); }
    /// Writes a page; false when its name is none that a file may have.
    bool take(const Page &page);
    void picture(const QString &sourcePath, const QString &fileName) override;
    /// Whether the file holds the bytes now.
    bool write(const QString &fileName, QByteArrayView bytes);

    const QString &path() const { return m_path; }
    int pages() const { return m_pages; }
    int pictures() const { return int(m_copied.size()); }
    int unchanged() const { return m_unchanged; }

    /// Called around each copy of a picture, so that a window can repaint during a long run.
    std::function<void()> yield = [] {};

private:
    void markOldFiles();
    void copyAssets(const QString &imgFolder, const QStringList &patterns, const QString &subFolder);
    bool copy(const QString &sourcePath, const QString &targetName, Incident::Kind incident);
    bool isAcceptable(const QString &fileName) const;

    QString m_path;
    RunReport &m_report;
    QSet<QString> m_oldFiles;
    QHash<QString, QString> m_origins;  ///< by file name, of the pages and assets written
    QHash<QString, QString> m_assets;   ///< by file name, the fixed files
    QHash<QString, QString> m_pictures; ///< by file name, the path each was copied from
    QSet<QString> m_copied;             ///< names of the pictures that lie in `images` now
    QSet<QString> m_clashes;            ///< names that two different pictures have
    QByteArray m_bytes;
    int m_pages = 0;
    int m_unchanged = 0;
};
