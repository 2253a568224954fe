// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembraplus/nembraplusresults.h"

namespace {

/// What stands in place of a level of a measurement that overloaded.
void markOverload(std::initializer_list<QString *> levels)
{
    for (QString *level : levels)
        *level = QStringLiteral("OL");
}

} // namespace

const Fields<LevelTimeWeightedOutput> &LevelTimeWeightedOutput::fields()
{
    using O = LevelTimeWeightedOutput;
    static const Fields<O> rows = {
        {"L%%Min", InRecord, 0, &O::min}, // counted from the first field of the time weighting
        {"L%%Max", InRecord, 1, &O::max},
        {"L%%MaxDateTime", InRecord, 2, &O::maxDateTime},
    };
    return rows;
}

const Fields<FreqWeightedOutputLevels> &FreqWeightedOutputLevels::fields()
{
    using O = FreqWeightedOutputLevels;
    static const Fields<O> rows({
        FieldRows<O>{
            {"L%Eq", InRecord, 5, &O::leq},
            {"L%E", InRecord, 6, &O::e},
            {"L%peak", InRecord, 7, &O::peak},
        },
        partRows(&O::impulse, "I", 8),
        partRows(&O::fast, "F", 12),
        partRows(&O::slow, "S", 16),
    });
    return rows;
}

void FreqWeightedOutputLevels::markOverload()
{
    ::markOverload({&leq, &e, &peak, &impulse.min, &impulse.max, &fast.min, &fast.max, &slow.min, &slow.max});
}

const Fields<NembraPlusResults> &NembraPlusResults::fields()
{
    using R = NembraPlusResults;
    static const Fields<R> rows({
        FieldRows<R>{{"mode", 1, 15, &R::m_mode, Form::IfThere}},
        partRows(&R::m_z, "Z"),
        partRows(&R::m_c, "C"),
        partRows(&R::m_a, "A"),
    });
    return rows;
}

int NembraPlusResults::parseHeader1(const QByteArray &answer)
{
    if (SoundLevelResults::parseHeader1(answer) != 0)
        return -1;
    const Pieces header = pieces(answer, HeaderTag);
    readPieces(*this, fields(), 1, header);
    m_overloaded = header.value(14) == "1";
    if (m_mode == QLatin1String("MANUAL"))
        m_sampleTime = absentText();
    return 0;
}

int NembraPlusResults::parseHeader2(const QByteArray &answer)
{
    const QVector<Pieces> lines = linesOf(answer, HeaderTag);
    FreqWeightedOutputLevels *const outputs[] = {&m_z, &m_c, &m_a};
    if (lines.size() < int(std::size(outputs)))
        return -1;
    for (int i = 0; i < int(std::size(outputs)); ++i) {
        readPieces(*outputs[i], FreqWeightedOutputLevels::fields(), InRecord, lines[i]);
        if (m_overloaded)
            outputs[i]->markOverload();
    }
    return 0;
}

int NembraPlusResults::parseHeader5(const QByteArray &answer)
{
    if (SoundLevelResults::parseHeader5(answer) != 0)
        return -1;
    if (m_overloaded)
        markOverload({&m_l05, &m_l10, &m_l50, &m_l90, &m_l95});
    return 0;
}
