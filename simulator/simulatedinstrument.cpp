// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/simulatedinstrument.h"

namespace {

constexpr int longestCommand = 1024;
constexpr int quietLooksBeforeLeaving = 3; // the system hands bytes over a moment after they were written
constexpr int mostLooks = 300;             // and if nobody reads, 1 ms apart

} // namespace

SimulatedInstrument::SimulatedInstrument(std::unique_ptr<VirtualInstrument> inside) : m_inside(std::move(inside))
{
    m_terminal.received = [this](const QByteArray &bytes) { receive(bytes); };
    m_terminal.writable = [this] { proceed(); };
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, [this] {
        if (!m_steps.empty())
            m_steps.front().delay = 0;
        proceed();
    });
}

void SimulatedInstrument::fault(const Fault &fault)
{
    m_faults.push_back(fault);
}

void SimulatedInstrument::clearFaults()
{
    m_faults.clear();
    m_mute = false;
}

void SimulatedInstrument::unplug()
{
    m_timer.stop();
    m_steps.clear();
    m_input.clear();
    m_terminal.hangUp();
}

void SimulatedInstrument::receive(const QByteArray &bytes)
{
    m_input += bytes;
    for (int end = m_input.indexOf("\r\n"); end >= 0; end = m_input.indexOf("\r\n")) {
        const QByteArray command = m_input.left(end + 2);
        m_input.remove(0, end + 2);
        obey(command);
    }
    if (m_input.size() > longestCommand)
        m_input.clear();
}

void SimulatedInstrument::obey(const QByteArray &command)
{
    m_commands.append(command);
    const bool echo = m_inside->echoes();
    Fault::Steps steps = stepsFor(command);
    if (m_mute || steps.empty())
        return;
    if (echo)
        steps.insert(steps.begin(), {0, command});
    steps.front().delay += m_delay;
    m_steps.insert(m_steps.end(), std::make_move_iterator(steps.begin()), std::make_move_iterator(steps.end()));
    proceed();
}

Fault::Steps SimulatedInstrument::stepsFor(const QByteArray &command)
{
    const Fault *fault = nullptr;
    for (Fault &candidate : m_faults) {
        if (candidate.befalls(command, m_bytesSent)) // each one counts, also behind one that fits
            fault = &candidate;
    }
    if (!fault)
        return {{0, m_inside->answer(command)}};
    return fault->steps(fault->replacesWork() ? QByteArray() : m_inside->answer(command));
}

/// Works off what there is to send, until it must wait for the time, for the reader or for a command.
void SimulatedInstrument::proceed()
{
    while (!m_steps.empty() && !m_timer.isActive() && m_terminal.isOpen()) {
        Fault::Step &step = m_steps.front();
        const Fault *cut = nextCut();
        const bool sent = step.sent == step.bytes.size();
        const bool leaving = step.unplug && sent;
        if (step.delay > 0) {
            m_timer.start(step.delay);
        } else if (cut && m_bytesSent >= cut->byteLimit() && !leaving) {
            meetCut(*cut);
        } else if (leaving) {
            leaveWhenRead();
        } else if (sent) {
            m_steps.pop_front();
        } else if (!send(step, cut)) {
            return;
        }
    }
}

/// Sends what is left of a step, up to the cut; false when the reader must take some first.
bool SimulatedInstrument::send(Fault::Step &step, const Fault *cut)
{
    const int left = step.bytes.size() - step.sent;
    const int count = cut ? int(qMin(cut->byteLimit() - m_bytesSent, qint64(left))) : left;
    const int sent = m_terminal.write(step.bytes.constData() + step.sent, count);
    m_bytesSent += sent;
    step.sent += sent;
    return sent == count;
}

const Fault *SimulatedInstrument::nextCut() const
{
    const Fault *next = nullptr;
    for (const Fault &fault : m_faults) {
        if (fault.cutsAtByte() && (!next || fault.byteLimit() < next->byteLimit()))
            next = &fault;
    }
    return next;
}

void SimulatedInstrument::meetCut(const Fault &cut)
{
    m_steps.clear();
    if (cut.isSilent())
        m_mute = true;
    else
        m_steps.push_back({0, {}, true});
}

void SimulatedInstrument::leaveWhenRead()
{
    m_quietLooks = m_terminal.unread() == 0 ? m_quietLooks + 1 : 0;
    if (m_quietLooks >= quietLooksBeforeLeaving || ++m_looks >= mostLooks)
        unplug();
    else
        m_timer.start(1);
}
