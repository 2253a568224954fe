// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/noise.h"
#include "simulator/virtualinstrument.h"

/// What all instruments of noise have in common: weightings, octave analysis, field checks, names of measurements.
class NoiseInstrument : public VirtualInstrument
{
public:
    NoiseInstrument(Identity identity, quint32 seed, const QVector<SimulatedExperiment> &memory);

protected:
    /// Tenths of dB.
    [[nodiscard]] int level(const SimulatedExperiment &experiment, int number) const;
    /// The levels of all records, loud to soft.
    [[nodiscard]] QVector<int> sortedLevels(const SimulatedExperiment &experiment) const;
    /// The level exceeded for `percent` of the time; empty without records.
    [[nodiscard]] static QByteArray exceeded(const QVector<int> &sorted, int percent);

    /// Bands of third octaves (0: 10 Hz), by their first and last.
    struct Bands {
        int first, last;
    };
    /// One line for each band; none for a measurement without analysis.
    [[nodiscard]] QByteArrayList bandLines(const SimulatedExperiment &experiment, double leq, Bands octaves,
                                           Bands thirds) const;
    /// Levels and dates, before and after.
    [[nodiscard]] static QByteArray checkFields(const SimulatedExperiment &experiment);

    [[nodiscard]] QByteArray listLine(const SimulatedExperiment &experiment) const override;

private:
    Noise m_noise;
};
