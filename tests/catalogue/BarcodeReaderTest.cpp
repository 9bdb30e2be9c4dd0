#include "platform/BarcodeReader.h"
#include "tests/support/Suite.h"

#include <QFile>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// The two ends of a wire: the reader's side is written to, the other has a name like a port.
class Wire {
public:
    Wire() : m_end(posix_openpt(O_RDWR | O_NOCTTY))
    {
        if (m_end < 0 || grantpt(m_end) != 0 || unlockpt(m_end) != 0)
            qFatal("no pseudo terminal");
    }
    ~Wire() { pull(); }
    Q_DISABLE_COPY_MOVE(Wire)

    QString port() const { return QFile::decodeName(ptsname(m_end)); }
    void send(const QByteArray &bytes)
    {
        if (write(m_end, bytes.constData(), size_t(bytes.size())) != bytes.size())
            qFatal("wire full");
    }
    void pull()
    {
        if (m_end >= 0)
            ::close(std::exchange(m_end, -1));
    }

private:
    int m_end;
};

} // namespace

class BarcodeReaderTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void codesAreTold()
    {
        const Rows<QByteArray, QStringList> rows = {
            {"ends", QByteArray("1004202026034\r\n4006381333931\n12\r"),
             QStringList{u"1004202026034"_s, u"4006381333931"_s, u"12"_s}},
            {"blanks and frames", QByteArray("\r\n \n\x02  A 12 \x03\r\n"), QStringList{u"A 12"_s}},
            {"no end", QByteArray("4006381333931"), QStringList{u"4006381333931"_s}},
            {"longest", QByteArray(QByteArray(BarcodeReader::longestCode, '7') + '\n'),
             QStringList{QString(BarcodeReader::longestCode, u'7')}},
            {"noise", QByteArray(QByteArray(1000, 'x') + "\n42\n"), QStringList{u"42"_s}}};
        for (const auto &[row, sent, codes] : rows) {
            const Row named(row);
            Wire wire;
            BarcodeReader reader;
            QStringList told;
            connect(&reader, &BarcodeReader::codeRead, this, [&told](const QString &code) { told << code; });
            QVERIFY(reader.open(wire.port()));
            wire.send(sent);
            QTRY_COMPARE(told, codes);
        }
    }

    void missingPortIsPassedOver()
    {
        BarcodeReader reader;
        for (const QString &port : {u""_s, u" "_s, u"ttyGone7"_s, u"/dev/null"_s, u"/tmp"_s}) {
            QVERIFY2(!reader.open(port), qPrintable(port));
            QVERIFY(!reader.isOpen());
        }
    }

    void readerMayBePulledOut()
    {
        BarcodeReader reader;
        QStringList told;
        connect(&reader, &BarcodeReader::codeRead, this, [&told](const QString &code) { told << code; });
        Wire first;
        QVERIFY(reader.open(first.port()));
        first.pull();
        QTRY_VERIFY(!reader.isOpen());
        Wire second;
        QVERIFY(reader.open(second.port()));
        second.send("12\n");
        QTRY_COMPARE(told, QStringList{u"12"_s});
    }
};

ZELVANTOR_SUITE(BarcodeReaderTest)
#include "BarcodeReaderTest.moc"
