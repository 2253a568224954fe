// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/simulatedexperiment.h"

#include <QByteArrayList>
#include <QHash>
#include <QVector>

#include <functional>
#include <optional>

/// The inside of a simulated instrument, without its cable: what it holds and how it answers. A command goes in, the
/// whole answer comes out, framed as on the wire. The base answers what all instruments of the maker answer; a family
/// derives from it, adds its settings and says how its records and headers read.
///
/// Refused with ERROR, like a real one: a command it does not know or that is malformed, a measurement that is not in
/// the memory, records beyond its size, a value out of range. The range "1,0" asks for nothing and gets OK.
class VirtualInstrument
{
public:
    struct Identity {
        QByteArray product;      ///< "THALVEX 2"
        QByteArray serialNumber; ///< "TX2-00417"
        QByteArray firmware;     ///< "1.08"
    };

    VirtualInstrument(Identity identity, const QVector<SimulatedExperiment> &memory);
    virtual ~VirtualInstrument() = default;
    VirtualInstrument(const VirtualInstrument &) = delete;
    VirtualInstrument &operator=(const VirtualInstrument &) = delete;

    /// `command` with its "\r\n".
    [[nodiscard]] QByteArray answer(const QByteArray &command);

    [[nodiscard]] const Identity &identity() const { return m_identity; }
    [[nodiscard]] bool echoes() const { return m_echo; } ///< true until "ATE0"
    void setEcho(bool on) { m_echo = on; }

    /// A setting as on the wire, by the name of its command: setting("VFUNIT") is "\"C\"", setting("VFINTVL") "60",
    /// setting("VFCTF") "\"25/11/18,10:00:00-12\",\"CAL-2025/118\"".
    [[nodiscard]] QByteArray setting(const QByteArray &name) const { return m_settings.value(name); }
    void setSetting(const QByteArray &name, const QByteArray &value) { m_settings[name] = value; }

    /// The instrument's clock: the computer's until "AT+CCLK=", then running on from what was set.
    [[nodiscard]] WireDate clock() const;

    [[nodiscard]] const QVector<SimulatedExperiment> &memory() const { return m_memory; }
    void addExperiment(SimulatedExperiment experiment); ///< as if it had just been measured
    virtual void eraseMemory() { m_memory.clear(); }

protected:
    /// The lines of an answer's data, none for an order that is merely obeyed; nothing when the instrument refuses.
    using Lines = std::optional<QByteArrayList>;
    using Action = std::function<Lines(const QByteArray &argument)>;
    using Check = std::function<bool(const QByteArray &value)>;

    /// `key` is the command up to and with its "?" or "=": "AT+VFCTF?".
    void addCommand(const QByteArray &key, Action action) { m_actions.insert(key, std::move(action)); }
    /// A value that is read with "AT+NAME?" and, with a check, written with "AT+NAME=".
    void addSetting(const QByteArray &name, const QByteArray &value, const Check &accepts = {});

    [[nodiscard]] static Check wholeNumber(int least, int greatest);
    /// One of some texts in quotes.
    [[nodiscard]] static Check oneOf(const QByteArrayList &texts);

    /// One line of the list of measurements; the base gives number, size and date.
    [[nodiscard]] virtual QByteArray listLine(const SimulatedExperiment &experiment) const;
    /// The lines of one record, counted from 1.
    [[nodiscard]] virtual QByteArrayList record(const SimulatedExperiment &experiment, int number) const = 0;
    /// What follows "header,index," in each line of a numbered header; nothing for a number that the family does not have.
    [[nodiscard]] virtual Lines header(int number, const SimulatedExperiment &experiment) const = 0;

    /// "index,number,0," and the date: how records begin.
    [[nodiscard]] static QByteArray recordStart(const SimulatedExperiment &experiment, int number);
    /// 254 as "25.4".
    [[nodiscard]] static QByteArray oneDecimal(int tenths);
    [[nodiscard]] static QByteArray twoDecimals(double value) { return QByteArray::number(value, 'f', 2); }

private:
    void addSharedCommands();
    [[nodiscard]] const SimulatedExperiment *experiment(int index) const;
    [[nodiscard]] Lines list() const;
    [[nodiscard]] Lines records(const QByteArray &argument) const;
    [[nodiscard]] Lines headerRecord(const QByteArray &argument) const;
    [[nodiscard]] Lines setClock(const QByteArray &argument);

    Identity m_identity;
    QHash<QByteArray, Action> m_actions;
    QHash<QByteArray, QByteArray> m_settings;
    QVector<SimulatedExperiment> m_memory;
    int m_lastIndex = 0;
    bool m_echo = true;
    qint64 m_clockAhead = 0; ///< seconds before the computer's clock
    int m_clockZone = 0;
};
