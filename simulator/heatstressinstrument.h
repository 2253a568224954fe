// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "simulator/climate.h"
#include "simulator/virtualinstrument.h"

/// What the heat-stress meters have in common: temperature unit, sampling interval, and one or more units with a wet,
/// a dry and a globe thermometer each. Extremes and averages are those of the records, as an instrument finds them.
class HeatStressInstrument : public VirtualInstrument
{
public:
    HeatStressInstrument(Identity identity, quint32 seed, int units, const QVector<SimulatedExperiment> &memory);

    void eraseMemory() override;

protected:
    struct Range {
        int most = 0;
        int least = 0;
    };
    /// One unit's measurement at a glance; extremes in tenths, averages in the unit of measurement.
    struct Summary {
        Range wet, dry, globe;
        double indoor = 0;
        double outdoor = 0;
    };

    [[nodiscard]] HeatSample sample(const SimulatedExperiment &experiment, int number, int unit) const;
    [[nodiscard]] Summary summary(const SimulatedExperiment &experiment, int unit) const;

    /// The three temperatures and the two indexes.
    [[nodiscard]] static QByteArray heatFields(const HeatSample &sample);
    [[nodiscard]] static QByteArray averageFields(const Summary &summary);
    /// Highest and lowest, wet before dry before globe.
    [[nodiscard]] static QByteArray extremeFields(const Summary &summary);

private:
    QVector<Climate> m_climates;
    mutable QHash<QPair<int, int>, Summary> m_summaries; ///< by measurement and unit
};
