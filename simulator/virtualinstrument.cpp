// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/virtualinstrument.h"

#include <QDateTime>

namespace {

constexpr int closingHeader = 8;

bool isDigits(const QByteArray &text)
{
    return !text.isEmpty() && text.size() < 10
           && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Exactly `count` whole numbers with commas between them.
std::optional<QVector<int>> numbers(const QByteArray &text, int count)
{
    const QByteArrayList parts = text.split(',');
    if (parts.size() != count || !std::all_of(parts.begin(), parts.end(), isDigits))
        return {};
    QVector<int> result;
    for (const QByteArray &part : parts)
        result.append(part.toInt());
    return result;
}

/// The text between two quotes that has none itself; nothing for any other form.
std::optional<QByteArray> unquoted(const QByteArray &text)
{
    if (text.size() < 2 || !text.startsWith('"') || !text.endsWith('"') || text.count('"') != 2)
        return {};
    return text.mid(1, text.size() - 2);
}

std::optional<WireDate> quotedDate(const QByteArray &text)
{
    return WireDate::fromText(unquoted(text).value_or(QByteArray()));
}

bool isCalibration(const QByteArray &value)
{
    const int border = value.indexOf("\",\"") + 1;
    return border > 0 && quotedDate(value.left(border)) && unquoted(value.mid(border + 1));
}

/// Battery voltage in mV and charge in mAh at start and stop, and why the measurement ended.
QByteArray closingFields(const SimulatedExperiment &experiment)
{
    const qint64 used = 1 + experiment.duration() / 600;
    const int charge = 40 * experiment.index;
    const int voltage = 4120 - 5 * experiment.index;
    const QList<qint64> values = {voltage, voltage - used, charge, charge + used};
    QByteArray text;
    for (const qint64 value : values)
        text += QByteArray::number(value) + ',';
    return text + "\"Stop key\"";
}

} // namespace

VirtualInstrument::VirtualInstrument(Identity identity, const QVector<SimulatedExperiment> &memory)
    : m_identity(std::move(identity)), m_clockZone(QDateTime::currentDateTime().offsetFromUtc() / 900)
{
    for (const SimulatedExperiment &experiment : memory)
        addExperiment(experiment);
    addSharedCommands();
}

void VirtualInstrument::addSharedCommands()
{
    const auto fixed = [](const QByteArray &text) { return [text](const QByteArray &) -> Lines { return {{text}}; }; };
    addCommand("AT+CGMI", fixed("morvane"));
    addCommand("AT+CGMM", fixed(m_identity.product));
    addCommand("AT+CGSN", fixed(m_identity.serialNumber));
    addCommand("AT+CGMR", fixed(m_identity.firmware));
    addCommand("ATE0", [this](const QByteArray &) -> Lines {
        m_echo = false;
        return QByteArrayList();
    });
    addCommand("AT+CCLK=", [this](const QByteArray &argument) { return setClock(argument); });
    addCommand("AT+VFERSMM", [this](const QByteArray &) -> Lines {
        eraseMemory();
        return QByteArrayList{QByteArray()};
    });
    addCommand("AT+VFXPLST", [this](const QByteArray &) { return list(); });
    addCommand("AT+VFRDXP=", [this](const QByteArray &argument) { return records(argument); });
    addCommand("AT+VFXPHDR=", [this](const QByteArray &argument) { return headerRecord(argument); });
    addSetting("VFCTF", "\"25/11/18,10:00:00-12\",\"CAL-2025/118\"", isCalibration);
    addSetting("VFSVCCFG", "3");
}

void VirtualInstrument::addSetting(const QByteArray &name, const QByteArray &value, const Check &accepts)
{
    m_settings[name] = value;
    addCommand("AT+" + name + '?', [this, name](const QByteArray &) -> Lines { return {{m_settings.value(name)}}; });
    if (!accepts)
        return;
    addCommand("AT+" + name + '=', [this, name, accepts](const QByteArray &argument) -> Lines {
        if (!accepts(argument))
            return {};
        m_settings[name] = argument;
        return QByteArrayList();
    });
}

VirtualInstrument::Check VirtualInstrument::wholeNumber(int least, int greatest)
{
    return [=](const QByteArray &value) {
        return isDigits(value) && value.toInt() >= least && value.toInt() <= greatest;
    };
}

VirtualInstrument::Check VirtualInstrument::oneOf(const QByteArrayList &texts)
{
    return [=](const QByteArray &value) { return texts.contains(unquoted(value).value_or("-")); };
}

QByteArray VirtualInstrument::answer(const QByteArray &command)
{
    const QByteArray text = command.endsWith("\r\n") ? command.left(command.size() - 2) : command;
    const int border = text.indexOf('=') + 1;
    const QByteArray key = border > 0 ? text.left(border) : text;
    const auto action = m_actions.constFind(key);
    const Lines lines = action == m_actions.constEnd() ? Lines() : (*action)(text.mid(key.size()));
    if (!lines)
        return "\r\nERROR\r\n";
    const QByteArray name = key.endsWith('?') || key.endsWith('=') ? key.mid(2, key.size() - 3) : key.mid(2);
    const QByteArray start = "\r\n" + name + ": ";
    QByteArray framed;
    for (const QByteArray &line : *lines)
        framed.append(start).append(line).append("\r\n"); // += of a sum would copy the whole each time
    return framed.append("\r\nOK\r\n");
}

WireDate VirtualInstrument::clock() const
{
    return WireDate::fromUtc(QDateTime::currentSecsSinceEpoch() + m_clockAhead, m_clockZone);
}

VirtualInstrument::Lines VirtualInstrument::setClock(const QByteArray &argument)
{
    const std::optional<WireDate> date = quotedDate(argument);
    if (!date)
        return {};
    m_clockAhead = date->utc() - QDateTime::currentSecsSinceEpoch();
    m_clockZone = date->quarters;
    return QByteArrayList();
}

void VirtualInstrument::addExperiment(SimulatedExperiment experiment)
{
    if (experiment.index == 0)
        experiment.index = m_lastIndex + 1;
    m_lastIndex = experiment.index;
    m_memory.append(experiment);
}

const SimulatedExperiment *VirtualInstrument::experiment(int index) const
{
    const auto found = std::find_if(m_memory.begin(), m_memory.end(),
                                    [index](const SimulatedExperiment &e) { return e.index == index; });
    return found == m_memory.end() ? nullptr : &*found;
}

QByteArray VirtualInstrument::listLine(const SimulatedExperiment &experiment) const
{
    return "0," + QByteArray::number(experiment.index) + ',' + QByteArray::number(experiment.size) + ','
           + experiment.startDate().fields();
}

VirtualInstrument::Lines VirtualInstrument::list() const
{
    if (m_memory.isEmpty())
        return QByteArrayList{QByteArray()}; // an empty memory says so with one empty line
    QByteArrayList lines;
    for (const SimulatedExperiment &experiment : m_memory)
        lines.append(listLine(experiment));
    return lines;
}

VirtualInstrument::Lines VirtualInstrument::records(const QByteArray &argument) const
{
    const auto asked = numbers(argument, 3);
    const SimulatedExperiment *found = asked ? experiment(asked->at(0)) : nullptr;
    if (!found)
        return {};
    const int first = asked->at(1);
    const int last = asked->at(2);
    const bool nothing = first == 1 && last == 0;
    if (!nothing && (first < 1 || last < first || last > found->size))
        return {};
    QByteArrayList lines;
    for (int number = first; number <= last; ++number)
        lines += record(*found, number);
    return lines;
}

VirtualInstrument::Lines VirtualInstrument::headerRecord(const QByteArray &argument) const
{
    const auto asked = numbers(argument, 2);
    const SimulatedExperiment *found = asked ? experiment(asked->at(1)) : nullptr;
    if (!found)
        return {};
    const int number = asked->at(0);
    Lines lines = number == closingHeader ? Lines({closingFields(*found)}) : header(number, *found);
    if (!lines)
        return {};
    for (QByteArray &line : *lines)
        line.prepend(QByteArray::number(number) + ',' + QByteArray::number(found->index) + ',');
    return lines;
}

QByteArray VirtualInstrument::recordStart(const SimulatedExperiment &experiment, int number)
{
    return QByteArray::number(experiment.index) + ',' + QByteArray::number(number) + ",0,"
           + experiment.startDate().later(experiment.elapsed(number)).fields();
}

QByteArray VirtualInstrument::oneDecimal(int tenths)
{
    const QByteArray whole = QByteArray::number(qAbs(tenths) / 10);
    return (tenths < 0 ? "-" : "") + whole + '.' + char('0' + qAbs(tenths) % 10);
}
