// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

/// One band of a spectrum, as the instrument sent it.
struct OctaveBand {
    QString freqIdx;
    QString frequency; ///< Hz, "125.00"
    QString value;     ///< level in dB, or acceleration in m/s²

    /// The rows of a band whose value stands under \a valueKey. Each band comes in a line of its own.
    template <class Band> static FieldRows<Band> rows(const QByteArray &valueKey)
    {
        return {
            {"freqIdx", InRecord, 3, &Band::freqIdx},
            {"frequency", InRecord, 4, &Band::frequency},
            {valueKey, InRecord, 5, &Band::value},
        };
    }
};

/// A band of sound.
struct LeqPerOctave : OctaveBand {
    QString leq() const { return value; }
    static const Fields<LeqPerOctave> &fields()
    {
        static const Fields<LeqPerOctave> table({rows<LeqPerOctave>("leq")});
        return table;
    }
};

/// A band of vibration.
struct AmrPerOctave : OctaveBand {
    QString amr() const { return value; }
    static const Fields<AmrPerOctave> &fields()
    {
        static const Fields<AmrPerOctave> table({rows<AmrPerOctave>("amr")});
        return table;
    }
};
