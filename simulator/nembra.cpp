// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/soundlevelinstrument.h"

namespace {

constexpr int fastAbove = 13; // tenths of dB
constexpr int peakAbove = 137;

/// The meter of one frequency weighting.
class SimulatedNembra final : public SoundLevelInstrument
{
public:
    using SoundLevelInstrument::SoundLevelInstrument;

private:
    QByteArrayList levelLines(const SimulatedExperiment &experiment) const override
    {
        const Summary all = summary(experiment);
        return {twoDecimals(all.leq) + ',' + oneDecimal(all.most) + ',' + oneDecimal(all.least) + ','
                + oneDecimal(all.most + fastAbove) + ',' + all.mostDate + ',' + twoDecimals(all.exposure) + ','
                + oneDecimal(all.most + peakAbove)};
    }
};

} // namespace

std::unique_ptr<VirtualInstrument> simulatedNembra(quint32 seed, const QVector<SimulatedExperiment> &memory)
{
    return std::make_unique<SimulatedNembra>(
        VirtualInstrument::Identity{"NEMBRA", serialNumber("NBR", seed), "1.14"}, seed, memory);
}
