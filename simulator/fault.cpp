// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/fault.h"

namespace {

Fault::Steps inPieces(const QByteArray &answer, int first, int size, int gap)
{
    Fault::Steps steps{{0, answer.left(first)}};
    for (int at = first; at < answer.size(); at += size)
        steps.push_back({gap, answer.mid(at, size)});
    return steps;
}

QByteArray renamed(QByteArray answer, const QByteArray &tag)
{
    for (int at = answer.indexOf("\r\n+"); at >= 0; at = answer.indexOf("\r\n+", at + 3)) {
        const int end = answer.indexOf(": ", at);
        if (end > 0)
            answer.replace(at + 2, end - at - 2, tag);
    }
    return answer;
}

QByteArray shortened(QByteArray answer, int fieldsLost)
{
    const int lineEnd = answer.lastIndexOf("\r\n\r\n"); // behind the last line of data
    const int lineStart = answer.lastIndexOf(": ", lineEnd) + 2;
    if (lineEnd < 0 || lineStart < 2)
        return answer;
    int keep = lineEnd;
    for (int i = 0; i < fieldsLost && keep > lineStart; ++i)
        keep = qMax(lineStart, answer.lastIndexOf(',', keep - 1));
    return answer.remove(keep, lineEnd - keep);
}

} // namespace

Fault::Fault() : Fault(Kind::Alters, [](const QByteArray &answer) { return Steps{{0, answer}}; }) { }

Fault Fault::silence()
{
    return {Kind::Silent, [](const QByteArray &) { return Steps(); }};
}

Fault Fault::busy()
{
    return answer("\r\nBUSY\r\n");
}

Fault Fault::error()
{
    return answer("\r\nERROR\r\n");
}

Fault Fault::answer(const QByteArray &bytes)
{
    return {Kind::Replaces, [bytes](const QByteArray &) { return Steps{{0, bytes}}; }};
}

Fault Fault::garbage(const QByteArray &bytes)
{
    return answer(bytes);
}

Fault Fault::split(int position, int gap)
{
    return {Kind::Alters, [=](const QByteArray &answer) { return inPieces(answer, position, answer.size(), gap); }};
}

Fault Fault::pieces(int size, int gap)
{
    return {Kind::Alters, [=](const QByteArray &answer) { return inPieces(answer, size, size, gap); }};
}

Fault Fault::late(int delay)
{
    return {Kind::Alters, [delay](const QByteArray &answer) { return Steps{{delay, answer}}; }};
}

Fault Fault::wrongTag(const QByteArray &tag)
{
    return {Kind::Alters, [tag](const QByteArray &answer) { return Steps{{0, renamed(answer, tag)}}; }};
}

Fault Fault::shortRecord(int fieldsLost)
{
    return {Kind::Alters, [=](const QByteArray &answer) { return Steps{{0, shortened(answer, fieldsLost)}}; }};
}

Fault Fault::unplugged(int bytesOfAnswer)
{
    return {Kind::Leaves, [=](const QByteArray &answer) { return Steps{{0, answer.left(bytesOfAnswer), true}}; }};
}

Fault Fault::on(const QByteArray &command) const
{
    Fault fault = *this;
    fault.m_command = command;
    return fault;
}

Fault Fault::at(int n) const
{
    Fault fault = from(n);
    fault.m_once = true;
    return fault;
}

Fault Fault::from(int n) const
{
    Fault fault = *this;
    fault.m_first = n;
    return fault;
}

Fault Fault::afterBytes(qint64 count) const
{
    Fault fault = *this;
    fault.m_bytes = count;
    return fault;
}

bool Fault::befalls(const QByteArray &command, qint64 bytesSent)
{
    const bool fits = m_command.endsWith("\r\n") ? command == m_command : command.startsWith(m_command);
    if (!fits || cutsAtByte() || bytesSent < m_bytes)
        return false;
    ++m_seen;
    return m_once ? m_seen == m_first : m_seen >= m_first;
}
