// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/pseudoterminal.h"

#include <QDebug>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace {

/// A notifier may be in the middle of its own signal.
void retire(std::unique_ptr<QSocketNotifier> &notifier)
{
    if (!notifier)
        return;
    notifier->setEnabled(false);
    notifier->disconnect();
    notifier.release()->deleteLater();
}

void closeFile(int &file)
{
    if (file >= 0)
        ::close(file);
    file = -1;
}

} // namespace

PseudoTerminal::PseudoTerminal()
{
    if (!open()) {
        qWarning("No pseudo-terminal for a simulated instrument: %s", qPrintable(qt_error_string(errno)));
        closeFile(m_slave);
        closeFile(m_master);
        return;
    }
    m_readNotifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
    QObject::connect(m_readNotifier.get(), &QSocketNotifier::activated, [this] { readAll(); });
    m_writeNotifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Write);
    m_writeNotifier->setEnabled(false);
    QObject::connect(m_writeNotifier.get(), &QSocketNotifier::activated, [this] {
        m_writeNotifier->setEnabled(false);
        if (writable)
            writable();
    });
}

PseudoTerminal::~PseudoTerminal()
{
    hangUp();
}

bool PseudoTerminal::open()
{
    m_master = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
        return false;
    const char *name = ptsname(m_master);
    m_slave = name ? ::open(name, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC) : -1;
    termios mode{};
    if (m_slave < 0 || tcgetattr(m_slave, &mode) != 0)
        return false;
    cfmakeraw(&mode);
    m_name = QString::fromLocal8Bit(name);
    return tcsetattr(m_slave, TCSANOW, &mode) == 0;
}

void PseudoTerminal::readAll()
{
    std::array<char, 4096> bytes{};
    while (isOpen()) {
        const ssize_t count = ::read(m_master, bytes.data(), bytes.size());
        if (count <= 0)
            return;
        if (received)
            received(QByteArray(bytes.data(), int(count)));
        if (count < ssize_t(bytes.size()))
            return;
    }
}

int PseudoTerminal::write(const char *bytes, int count)
{
    if (!isOpen())
        return count;
    int sent = 0;
    while (sent < count) {
        const ssize_t now = ::write(m_master, bytes + sent, size_t(count - sent));
        if (now <= 0)
            break;
        sent += int(now);
    }
    m_writeNotifier->setEnabled(sent < count);
    return sent;
}

int PseudoTerminal::unread() const
{
    int count = 0;
    return m_slave >= 0 && ioctl(m_slave, FIONREAD, &count) == 0 ? count : 0;
}

void PseudoTerminal::hangUp()
{
    retire(m_readNotifier);
    retire(m_writeNotifier);
    closeFile(m_slave);
    closeFile(m_master);
}
