#include "platform/Picture.h"
#include "tests/support/Files.h"
#include "tests/support/Suite.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class PictureTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void whatIsCutIsNotWhole_data();
    void whatIsCutIsNotWhole();
};

namespace {

QByteArray picture(const char *format, int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            image.setPixelColor(x, y, QColor::fromHsv((x * 7 + y * y) % 360, 200, 200));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, format);
    return bytes;
}

/// As cameras do: a small picture of its own stands in a segment of the head.
QByteArray withPreview(QByteArray jpeg)
{
    const QByteArray preview = picture("JPG", 8);
    const auto length = quint16(preview.size() + 2);
    return jpeg.insert(2, QByteArray("\xFF\xE1") + char(length >> 8) + char(length & 0xFF) + preview);
}

} // namespace

void PictureTest::whatIsCutIsNotWhole_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("whole");
    const QByteArray jpeg = withPreview(picture("JPG", 120));
    const QByteArray png = picture("PNG", 120);
    const QByteArray behind(100000, '\0');
    QTest::newRow("jpeg") << jpeg << true;
    QTest::newRow("jpeg, much behind its end") << jpeg + behind << true;
    QTest::newRow("jpeg, cut") << jpeg.first(jpeg.size() * 2 / 3) << false;
    QTest::newRow("jpeg, only its head") << jpeg.first(1200) << false;
    QTest::newRow("png") << png << true;
    QTest::newRow("png, much behind its end") << png + behind << true;
    QTest::newRow("png, cut") << png.first(png.size() / 2) << false;
    QTest::newRow("a page") << QByteArray("<html>") << false;
}

void PictureTest::whatIsCutIsNotWhole()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir folder;
    Files::write(folder.filePath(u"a.bin"_s), bytes);
    QTEST(Picture::isWhole(folder.filePath(u"a.bin"_s)), "whole");
}

ZELVANTOR_SUITE(PictureTest)
#include "PictureTest.moc"
