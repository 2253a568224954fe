// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QObject>
#include <QSerialPort>

#include <limits>
#include <memory>

/// The byte transport under an instrument: one serial port, one buffer of what has arrived, and a wait that ends with
/// the end of an answer or with silence. Knows nothing of commands but the three ends that answers have.
///
/// Waiting pumps the event loop, so anything can happen inside read(): the port may be closed, and whoever holds the
/// last reference may let go. A caller keeps its reference until read() has returned.
class Interface : public QObject
{
    Q_OBJECT

public:
    /// More bytes than any answer has. What a device sends beyond them is lost.
    static constexpr int LongestAnswer = 16 * 1024 * 1024;

    Interface() = default;
    ~Interface() override;

    /// 0 is a serial port, the only link that there is; others do nothing.
    void setLinkType(int type) { m_linkType = type; }
    /// The system location of the port to be opened.
    void setPortName(const QString &location) { m_portName = location; }

    /// Opens the port: 0, or 1 when that fails or the type is unknown.
    int open();
    /// Closes the port if it is open; a wait for an answer ends at once.
    int close();
    /// Throws away what the driver holds and sends \a data: 0, or 1 when not all of it was taken, when no port is open
    /// and while an answer to an earlier command is being waited for.
    [[nodiscard]] int write(const QByteArray &data);
    /// What an answer cannot be longer than.
    struct Bounds {
        int bytes = LongestAnswer;
        qint64 milliseconds = std::numeric_limits<qint64>::max();
    };
    /// Waits for the end of an answer, for half a second of silence or for one of \a bounds, and gives what has arrived:
    /// nothing at worst.
    QByteArray read(const Bounds &bounds);
    QByteArray read() { return read(Bounds()); }
    /// Ends a wait at once; until resume() nothing is sent any more, and no answer is waited for.
    void cancel() { m_cancelled = true; }
    /// Forgets what has arrived, and lets commands through again.
    void resume();
    /// The port, for its error(); null while closed.
    QSerialPort *serialPort() const { return m_port.get(); }

signals:
    void ifaceErrorOcurred(QSerialPort::SerialPortError s);

public slots:
    void readData();
    void serialErrorOcurred(QSerialPort::SerialPortError s);

private:
    QByteArray m_buffer;
    bool m_responseComplete = false;
    bool m_waiting = false;
    bool m_cancelled = false;
    int m_linkType = 0;
    std::unique_ptr<QSerialPort> m_port;
    QString m_portName;
    QElapsedTimer m_lastActivity;
    QMetaObject::Connection m_errorConnection;
    QMetaObject::Connection m_readConnection;
};
