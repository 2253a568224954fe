// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMetaType>

#include <functional>
#include <vector>

/// Something that goes wrong on a simulated instrument. Made by a name, narrowed by what follows it:
///
///     instrument.fault(Fault::busy());                                            // from now on, always
///     instrument.fault(Fault::busy().on("AT+VFUNIT?\r\n"));                       // this command, each time
///     instrument.fault(Fault::error().on("AT+VFRDXP=").at(2));                    // the second request for records
///     instrument.fault(Fault::split(17, 300).from(4));                            // the fourth command and all after
///     instrument.fault(Fault::unplugged().afterBytes(1234));                      // when 1234 bytes have been sent
///
/// BUSY, ERROR, silence, garbage and a given answer come in place of the command's work: nothing is stored or erased.
/// With the others the instrument does as told and its answer suffers on the way. Of several faults that fit, the one
/// set last counts. Where the instrument still echoes, the echo goes out whole before the fault, except with silence.
class Fault
{
public:
    /// One stretch of an answer: wait, send, and perhaps leave.
    struct Step {
        int delay = 0; ///< ms before the bytes
        QByteArray bytes;
        bool unplug = false; ///< after the bytes have reached the reader
        int sent = 0;        ///< of the bytes, so far
    };
    using Steps = std::vector<Step>;

    Fault(); ///< nothing goes wrong; for rows of test data
    static Fault silence();
    static Fault busy();
    static Fault error();
    static Fault answer(const QByteArray &bytes);
    /// Bytes without any end of answer.
    static Fault garbage(const QByteArray &bytes = QByteArrayLiteral("\x81\xfe?\r\n+V\x00\xff,,\"OK"));
    /// In two pieces, `gap` ms apart, the first with `position` bytes.
    static Fault split(int position, int gap);
    /// In pieces of `size` bytes, `gap` ms apart.
    static Fault pieces(int size, int gap);
    /// The whole answer, `delay` ms later.
    static Fault late(int delay);
    /// Each line of data under another name than asked for.
    static Fault wrongTag(const QByteArray &tag = QByteArrayLiteral("+VFOTHER"));
    /// The last line of data without its last fields.
    static Fault shortRecord(int fieldsLost = 1);
    /// Gone after so many bytes of the answer; 0: without a word.
    static Fault unplugged(int bytesOfAnswer = 0);

    /// A command with its "\r\n" is meant as it stands, a text without is the beginning of commands.
    [[nodiscard]] Fault on(const QByteArray &command) const;
    /// The n-th fitting command alone, counted from 1 and from when the fault is set; without `on` the n-th of all.
    [[nodiscard]] Fault at(int n) const;
    /// The n-th fitting command and all after it.
    [[nodiscard]] Fault from(int n) const;
    /// Not before so many bytes have been sent, over the instrument's whole life. Silence and unplugging then come
    /// right behind that byte, in the middle of an answer too, and silence lasts.
    [[nodiscard]] Fault afterBytes(qint64 count) const;

    // For the instrument that carries the fault.
    [[nodiscard]] bool befalls(const QByteArray &command, qint64 bytesSent); ///< counts the command when it fits
    [[nodiscard]] bool cutsAtByte() const { return m_bytes >= 0 && (m_kind == Kind::Silent || m_kind == Kind::Leaves); }
    [[nodiscard]] bool replacesWork() const { return m_kind == Kind::Replaces || m_kind == Kind::Silent; }
    [[nodiscard]] bool isSilent() const { return m_kind == Kind::Silent; }
    [[nodiscard]] qint64 byteLimit() const { return m_bytes; }
    [[nodiscard]] Steps steps(const QByteArray &answer) const { return m_effect(answer); }

private:
    enum class Kind { Replaces, Silent, Alters, Leaves };
    using Effect = std::function<Steps(const QByteArray &answer)>;

    Fault(Kind kind, Effect effect) : m_kind(kind), m_effect(std::move(effect)) { }

    Kind m_kind;
    Effect m_effect;
    QByteArray m_command;
    int m_first = 1;
    bool m_once = false;
    qint64 m_bytes = -1;
    int m_seen = 0;
};

Q_DECLARE_METATYPE(Fault)
