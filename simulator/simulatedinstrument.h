// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/fault.h"
#include "simulator/pseudoterminal.h"
#include "simulator/virtualinstrument.h"

#include <QByteArrayList>
#include <QTimer>

#include <deque>
#include <memory>
#include <vector>

/// An instrument on a serial port of its own, to be opened by name like a real one.
///
///     SimulatedInstrument instrument(simulatedThalvex2(seed));        // simulator/families.h
///     instrument.fault(Fault::busy().on("AT+VFRDXP=").at(2));         // simulator/fault.h
///     port.setPortName(instrument.portName());
///     ...
///     QCOMPARE(instrument.commands(), QByteArrayList{"AT+VFUNIT?\r\n"});
///     QCOMPARE(instrument.inside().setting("VFUNIT"), QByteArray("\"F\""));
///
/// It has no thread: the event loop of its maker carries it, also while the suite waits for an answer, for that wait
/// pumps events. It needs a QCoreApplication. Commands are answered in the order in which they come, the next when
/// the answer before has gone out; an answer larger than the system's buffer follows as the reader takes it.
class SimulatedInstrument
{
public:
    explicit SimulatedInstrument(std::unique_ptr<VirtualInstrument> inside);
    SimulatedInstrument(const SimulatedInstrument &) = delete;
    SimulatedInstrument &operator=(const SimulatedInstrument &) = delete;

    [[nodiscard]] QString portName() const { return m_terminal.name(); }
    /// Memory, settings, clock and echo: what the commands changed, and what a test wants to find there.
    [[nodiscard]] VirtualInstrument &inside() { return *m_inside; }

    /// Every command that arrived, each with its "\r\n", in order; those met by a fault too.
    [[nodiscard]] QByteArrayList commands() const { return m_commands; }
    void clearCommands() { m_commands.clear(); }
    [[nodiscard]] qint64 bytesSent() const { return m_bytesSent; } ///< echo included

    void fault(const Fault &fault);
    void clearFaults();
    /// Short for fault(Fault::answer(bytes).on(command)).
    void answer(const QByteArray &command, const QByteArray &bytes) { fault(Fault::answer(bytes).on(command)); }
    /// Time that each answer takes to begin, in ms; 0, as at first: at once.
    void setDelay(int ms) { m_delay = ms; }

    /// Pulls the plug now: what was not read is lost and the port reports an error. There is no way back.
    void unplug();
    [[nodiscard]] bool isPlugged() const { return m_terminal.isOpen(); }

private:
    void receive(const QByteArray &bytes);
    void obey(const QByteArray &command);
    [[nodiscard]] Fault::Steps stepsFor(const QByteArray &command);
    void proceed();
    [[nodiscard]] bool send(Fault::Step &step, const Fault *cut);
    void leaveWhenRead();
    void meetCut(const Fault &cut);
    [[nodiscard]] const Fault *nextCut() const;

    std::unique_ptr<VirtualInstrument> m_inside;
    PseudoTerminal m_terminal;
    QTimer m_timer;
    QByteArray m_input;
    QByteArrayList m_commands;
    std::vector<Fault> m_faults;
    std::deque<Fault::Step> m_steps;
    qint64 m_bytesSent = 0;
    int m_delay = 0;
    int m_quietLooks = 0; ///< how often nothing was left to read, before leaving
    int m_looks = 0;
    bool m_mute = false;
};
