// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

/// One band of a spectrum, as the instrument sent it.
struct OctaveBand {
    QString freqIdx;
    QString frequency; ///< Hz, "125.00"
    QString value;     ///< level in dB, or acceleration in m/s²

    /// The rows of a band whose value stands under \a valueKey. Each band comes in a line of its own.
    template <class Band> static FieldRows<Band> rows(const QByteArray &valueKey, Form form = Form::Plain)
    {
        return {
            {"freqIdx", InRecord, 3, &Band::freqIdx, form},
            {"frequency", InRecord, 4, &Band::frequency, form},
            {valueKey, InRecord, 5, &Band::value, form},
        };
    }
};

/// A band of sound.
struct LeqPerOctave : OctaveBand {
    static constexpr char ListKey[] = "leqList";
    QString leq() const { return value; }
    static const Fields<LeqPerOctave> &fields()
    {
        static const Fields<LeqPerOctave> table({rows<LeqPerOctave>("leq")});
        return table;
    }
};

/// A band of vibration.
struct AmrPerOctave : OctaveBand {
    static constexpr char ListKey[] = "amrList";
    QString amr() const { return value; }
    static const Fields<AmrPerOctave> &fields()
    {
        static const Fields<AmrPerOctave> table({rows<AmrPerOctave>("amr", Form::Dashed)});
        return table;
    }
};

/// All bands of a measurement, low to high.
template <class Band> struct SpectrumOf {
    QString count; ///< as the instrument tells it; empty when it tells of none
    QVector<Band> bands;

    static const Fields<SpectrumOf> &fields()
    {
        static const Fields<SpectrumOf> table = {
            {"numFreq", NotOnWire, 0, &SpectrumOf::count},
            {Band::ListKey, NotOnWire, 0, listOf(&SpectrumOf::bands)},
        };
        return table;
    }

    /// Reads header \a number, a line for each band: 0, or -1 unless they are as many as it tells of.
    [[nodiscard]] int parse(int number, const QByteArray &answer, ForeignLine foreign)
    {
        const auto lines = readLines<Band>(number, answer, 6, foreign);
        count = lines.count;
        bands = lines.parts;
        return lines.isComplete() ? 0 : -1;
    }
};
using LeqSpectrum = SpectrumOf<LeqPerOctave>;
using AmrSpectrum = SpectrumOf<AmrPerOctave>;
