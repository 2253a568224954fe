// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/noiseinstrument.h"

/// What the sound level meters have in common: one level in a record. Equivalent, highest and lowest level and the
/// statistics are those of the records; the other weightings lie a fixed way above or below.
class SoundLevelInstrument : public NoiseInstrument
{
public:
    using NoiseInstrument::NoiseInstrument;

protected:
    struct Summary {
        double leq = 0;      ///< dB
        double exposure = 0; ///< dB: as if all had come in one second
        int most = 0;        ///< tenths of dB
        int least = 0;
        QByteArray mostDate; ///< as two fields
    };
    [[nodiscard]] Summary summary(const SimulatedExperiment &experiment) const;

    [[nodiscard]] QByteArrayList record(const SimulatedExperiment &experiment, int number) const override;
    [[nodiscard]] Lines header(int number, const SimulatedExperiment &experiment) const override;
    /// What is told of the levels.
    [[nodiscard]] virtual QByteArrayList levelLines(const SimulatedExperiment &experiment) const = 0;
    /// General data.
    [[nodiscard]] virtual QByteArray generalFields(const SimulatedExperiment &experiment) const;

private:
    [[nodiscard]] QByteArray statisticFields(const SimulatedExperiment &experiment) const;
};
