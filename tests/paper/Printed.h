#pragma once
#include "platform/PrintLayout.h"

#include <QImage>
#include <QRectF>
#include <QTemporaryDir>
#include <memory>

/// A document as it comes out: its PDF, read back by programs that know nothing of its making.
class Printed {
public:
    explicit Printed(const PrintDocument &document);
    explicit Printed(const QString &pdf) : m_path(pdf) {}

    QString text() const;
    /// Where a word stands on the first page, in tenths of a millimetre, once for every time that it is there.
    QList<QRectF> places(const QString &word) const;
    /// A page at 300 dots per inch.
    QImage picture(int page = 1) const;
    /// Every EAN-13 code that a scanner reads in a picture.
    static QStringList codes(const QImage &page);
    /// Smallest rectangle around everything dark within a place, both in tenths of a millimetre.
    static QRectF ink(const QImage &page, const QRectF &place);

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};
