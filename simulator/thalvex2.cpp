// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/heatstressinstrument.h"

namespace {

/// The meter of one unit: five values in a record, three headers.
class SimulatedThalvex2 final : public HeatStressInstrument
{
public:
    using HeatStressInstrument::HeatStressInstrument;

private:
    QByteArrayList record(const SimulatedExperiment &experiment, int number) const override
    {
        return {recordStart(experiment, number) + ',' + heatFields(sample(experiment, number, 0))};
    }

    Lines header(int number, const SimulatedExperiment &experiment) const override
    {
        switch (number) {
        case 1:
            return {{QByteArray::number(experiment.interval) + ',' + QByteArray::number(experiment.pauseTaken()) + ','
                   + QByteArray::number(experiment.duration()) + ",\"" + experiment.unit + '"'}};
        case 2:
            return {{averageFields(summary(experiment, 0)) + ',' + experiment.startDate().fields() + ','
                   + experiment.stopDate().fields()}};
        case 3:
            return {{extremeFields(summary(experiment, 0))}};
        default:
            return {};
        }
    }
};

} // namespace

std::unique_ptr<VirtualInstrument> simulatedThalvex2(quint32 seed, const QVector<SimulatedExperiment> &memory)
{
    return std::make_unique<SimulatedThalvex2>(
        VirtualInstrument::Identity{"THALVEX 2", serialNumber("TX2", seed), "1.08"}, seed, 1, memory);
}
