// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/soundlevelinstrument.h"

namespace {

/// How far a weighting lies from the one of the records, in tenths of dB.
constexpr int frequencyAbove[] = {26, 18, 0}; // Z, C, A
struct TimeWeighting {
    int leastAbove, mostAbove;
};
constexpr TimeWeighting timeWeightings[] = {{4, 24}, {-6, 13}, {0, 0}}; // impulse, fast, slow
constexpr int peakAbove = 137;

/// The meter of all weightings at once.
class SimulatedNembraPlus final : public SoundLevelInstrument
{
public:
    using SoundLevelInstrument::SoundLevelInstrument;

private:
    QByteArrayList record(const SimulatedExperiment &experiment, int number) const override
    {
        return {SoundLevelInstrument::record(experiment, number).first() + ',' + QByteArray::number(experiment.interval)};
    }

    QByteArray generalFields(const SimulatedExperiment &experiment) const override
    {
        return SoundLevelInstrument::generalFields(experiment) + ",0," + (experiment.overloaded ? '1' : '0')
               + (experiment.manual ? ",\"MANUAL\"" : ",\"AUTO\"");
    }

    QByteArrayList levelLines(const SimulatedExperiment &experiment) const override
    {
        const Summary all = summary(experiment);
        QByteArrayList lines;
        for (const int above : frequencyAbove) {
            QByteArray line = QByteArray::number(lines.size() + 1) + ",3,0," + twoDecimals(all.leq + above / 10.0) + ','
                              + twoDecimals(all.exposure + above / 10.0) + ',' + oneDecimal(all.most + above + peakAbove);
            for (const TimeWeighting &time : timeWeightings)
                line += ',' + oneDecimal(all.least + above + time.leastAbove) + ','
                        + oneDecimal(all.most + above + time.mostAbove) + ',' + all.mostDate;
            lines.append(line);
        }
        return lines;
    }
};

} // namespace

std::unique_ptr<VirtualInstrument> simulatedNembraPlus(quint32 seed, const QVector<SimulatedExperiment> &memory)
{
    return std::make_unique<SimulatedNembraPlus>(
        VirtualInstrument::Identity{"NEMBRA+", serialNumber("NBP", seed), "3.02"}, seed, memory);
}
