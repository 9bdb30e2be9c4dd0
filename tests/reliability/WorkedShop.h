#pragma once
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

/// The shop that `worker` changes, and what must be true of it after any end of the worker.
class WorkedShop {
public:
    WorkedShop();

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString folder() const { return m_folder.path(); }
    /// The arguments of the next run of the worker: other numbers each time.
    QStringList arguments(unsigned seed, int steps);
    /// Takes what the worker has said.
    void take(const QByteArray &said);
    /// Fails the test where the shop does not hold what was said, or holds a half of something.
    void verify() const;
    /// Names of files that nobody asked for.
    QStringList strangers() const;

private:
    void verifyProducts(class Connection &store) const;
    void verifyCopies(class Connection &store) const;

    QTemporaryDir m_folder;
    QMap<int, int> m_saved; ///< number last said for each product
    QMap<int, int> m_tried; ///< copies: 1 there, 0 gone, -1 one of both
    QStringList m_lists;
    int m_setting = 0;
    int m_text = 0;
    int m_next = 1;
};
