// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

class QSocketNotifier;

/// The instrument's end of a serial cable: a pseudo-terminal in raw mode, driven by the event loop of whoever made it.
/// It holds the computer's end open as well, so that readers may come and go; `hangUp` lets both go, and a reader then
/// gets the error of a device that was pulled out: from QSerialPort ResourceError, or ReadError on every turn of the
/// event loop, as the system's last failed call happens to be.
class PseudoTerminal
{
public:
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    [[nodiscard]] bool isOpen() const { return m_master >= 0; }
    [[nodiscard]] QString name() const { return m_name; } ///< "/dev/pts/7"; kept after hanging up

    /// As many bytes as go out at once; behind fewer than `count`, `writable` is called when more will go.
    [[nodiscard]] int write(const char *bytes, int count);
    [[nodiscard]] int unread() const; ///< bytes sent that no reader has taken yet
    void hangUp();

    std::function<void(const QByteArray &bytes)> received;
    std::function<void()> writable;

private:
    [[nodiscard]] bool open();
    void readAll();

    int m_master = -1;
    int m_slave = -1;
    QString m_name;
    std::unique_ptr<QSocketNotifier> m_readNotifier;
    std::unique_ptr<QSocketNotifier> m_writeNotifier;
};
