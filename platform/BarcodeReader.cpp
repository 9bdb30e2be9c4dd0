#include "platform/BarcodeReader.h"

#include <QLoggingCategory>
#include <QSerialPort>

#include <chrono>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(logReader, "zelvantor.reader", QtWarningMsg)

// At 9600 baud a character takes one millisecond.
constexpr std::chrono::milliseconds endOfCode{100};

bool isLost(const QSerialPort &port)
{
    return port.error() == QSerialPort::ResourceError || port.error() == QSerialPort::ReadError;
}

} // namespace

BarcodeReader::BarcodeReader(QObject *parent) : QObject(parent), m_port(new QSerialPort(this))
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(endOfCode);
    connect(&m_pause, &QTimer::timeout, this, &BarcodeReader::deliver);
    connect(m_port, &QSerialPort::readyRead, this, &BarcodeReader::take);
    // Queued, since the port may not be closed in the middle of its own work.
    connect(
        m_port, &QSerialPort::errorOccurred, this,
        [this] {
            if (!isOpen() || !isLost(*m_port))
                return;
            qCInfo(logReader) << "reader lost:" << m_port->portName() << m_port->errorString();
            close();
        },
        Qt::QueuedConnection);
}

BarcodeReader::~BarcodeReader() = default;

bool BarcodeReader::open(const QString &port)
{
    close();
    if (port.trimmed().isEmpty())
        return false;
    m_port->setPortName(port.trimmed());
    if (!m_port->open(QIODevice::ReadOnly)) {
        qCInfo(logReader) << "no reader on" << m_port->portName() << m_port->errorString();
        return false;
    }
    return true;
}

void BarcodeReader::close()
{
    m_pause.stop();
    m_line.clear();
    if (m_port->isOpen())
        m_port->close();
}

bool BarcodeReader::isOpen() const
{
    return m_port->isOpen();
}

void BarcodeReader::take()
{
    for (const char c : m_port->readAll()) {
        if (c == '\r' || c == '\n')
            deliver();
        else if (m_line.size() <= longestCode)
            m_line += c;
    }
    if (m_line.isEmpty())
        m_pause.stop();
    else
        m_pause.start();
}

/// Some readers frame a code with control characters, which are no part of it.
void BarcodeReader::deliver()
{
    const QByteArray line = std::exchange(m_line, {});
    if (line.size() > longestCode) {
        qCInfo(logReader) << "noise from" << m_port->portName();
        return;
    }
    QString code;
    for (const QChar c : QString::fromLatin1(line))
        if (c.isPrint())
            code += c;
    code = code.trimmed();
    if (!code.isEmpty())
        Q_EMIT codeRead(code);
}
