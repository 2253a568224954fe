// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/interface.h"

#include "link/reply.h"

#include <QCoreApplication>

namespace {

constexpr qint64 SilenceLimit = 500; // milliseconds, restarted by every arrival
constexpr int LastLooks = 3;         // turns of the event loop, behind the limit

bool endsAnswer(const QByteArray &bytes)
{
    return bytes.endsWith(EndOk) || bytes.endsWith(EndError) || bytes.endsWith(EndBusy);
}

} // namespace

Interface::~Interface()
{
    close();
}

int Interface::open()
{
    if (m_linkType != 0)
        return m_linkType > 2 ? 1 : 0;
    m_port = std::make_unique<QSerialPort>(m_portName);
    // No rate, parity or flow control is set: the instruments are USB devices, on which these do not matter.
    if (!m_port->open(QIODevice::ReadWrite)) {
        m_port.reset();
        return 1;
    }
    m_errorConnection = connect(m_port.get(), &QSerialPort::errorOccurred, this, &Interface::serialErrorOcurred);
    m_readConnection = connect(m_port.get(), &QSerialPort::readyRead, this, &Interface::readData);
    return 0;
}

int Interface::close()
{
    if (m_linkType != 0)
        return m_linkType;
    disconnect(m_errorConnection);
    disconnect(m_readConnection);
    m_port.reset();
    return 0;
}

int Interface::write(const QByteArray &data)
{
    // Between a command and its answer nothing else may be sent: the answers would be taken for one another.
    if (!m_port || !m_port->isOpen() || m_waiting || m_cancelled)
        return 1;
    m_port->clear(QSerialPort::AllDirections);
    m_responseComplete = false;
    const qint64 accepted = m_port->write(data);
    return m_port->error() != QSerialPort::NoError || accepted < data.size() ? 1 : 0;
}

void Interface::resume()
{
    m_cancelled = false;
    m_buffer.clear();
}

void Interface::readData()
{
    m_buffer += m_port->readAll().left(LongestAnswer - m_buffer.size());
    m_lastActivity.start();
    m_responseComplete = endsAnswer(m_buffer);
}

// The spin costs a core while it waits, and is the fastest way to the next byte; pumping the event loop is what keeps
// the window alive during a download. The window may have been busy for longer than the limit in the last turn: an answer
// that came meanwhile is found by looking once more.
QByteArray Interface::read(const Bounds &bounds)
{
    if (m_waiting)
        return {};
    m_waiting = true;
    m_lastActivity.start();
    QElapsedTimer whole;
    whole.start();
    for (int looks = 0; m_port && !m_cancelled && !m_responseComplete && m_buffer.size() < bounds.bytes &&
                        whole.elapsed() < bounds.milliseconds;) {
        looks = m_lastActivity.elapsed() < SilenceLimit ? 0 : looks + 1;
        if (looks > LastLooks)
            break;
        QCoreApplication::processEvents();
    }
    m_waiting = false;
    QByteArray result;
    result.swap(m_buffer);
    return result;
}

void Interface::serialErrorOcurred(QSerialPort::SerialPortError s)
{
    if (s == QSerialPort::ResourceError || s == QSerialPort::ReadError) {
        // The instrument is gone. The port would say so again on every turn of the event loop and keep a core busy
        // for as long as nobody picks this instrument, so it is closed; its error() stays for who asks.
        disconnect(m_errorConnection);
        QMetaObject::invokeMethod(m_port.get(), [port = m_port.get()] { port->close(); }, Qt::QueuedConnection);
    }
    emit ifaceErrorOcurred(s);
}
