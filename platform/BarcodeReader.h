#pragma once
#include <QByteArray>
#include <QObject>
#include <QTimer>

class QSerialPort;

/// A hand-held bar code reader on a serial port. Nobody needs one to work, so nothing of it ever shows a box: what
/// goes wrong is only logged.
class BarcodeReader : public QObject {
    Q_OBJECT
public:
    /// A longer line is noise on the wire and no code.
    static constexpr int longestCode = 256;

    explicit BarcodeReader(QObject *parent = nullptr);
    ~BarcodeReader() override;

    /// Starts listening on a port such as "ttyUSB0" or "/dev/ttyACM0", and lets go of the one before. Without a name
    /// nothing is tried. True when it listens; a port that is gone or taken gives false at once.
    bool open(const QString &port);
    void close();
    /// False again once the device has been pulled out.
    bool isOpen() const;

Q_SIGNALS:
    /// A code, trimmed and never empty. It ends at CR or LF or, with a reader that sends neither, at a short pause.
    void codeRead(const QString &code);

private:
    void take();
    void deliver();

    QSerialPort *m_port;
    QTimer m_pause;
    QByteArray m_line;
};
