// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/heatstressinstrument.h"

namespace {

constexpr int mostUnits = 4;

/// The meter with up to three expansions: a block for each unit in every record, names, four headers.
class SimulatedThalvex4 final : public HeatStressInstrument
{
public:
    SimulatedThalvex4(Identity identity, quint32 seed, int expansions, int gap,
                      const QVector<SimulatedExperiment> &memory)
        : HeatStressInstrument(std::move(identity), seed, expansions + 1, memory),
          m_seed(seed), m_units(expansions + 1), m_gap(gap)
    {
    }

private:
    QByteArray listLine(const SimulatedExperiment &experiment) const override
    {
        return HeatStressInstrument::listLine(experiment) + ",\"" + experiment.name.toLatin1() + '"';
    }

    QByteArrayList record(const SimulatedExperiment &experiment, int number) const override
    {
        return {recordStart(experiment, number) + blocks(8, [&](int unit) -> QByteArray {
            const HeatSample now = sample(experiment, number, unit);
            const qint64 water = qMax(qint64(5), 100 - experiment.elapsed(number) / 720); // per cent
            return heatFields(now) + ',' + oneDecimal(now.air) + ',' + QByteArray::number(water) + ','
                   + (now.tilted ? '1' : '0');
        })};
    }

    Lines header(int number, const SimulatedExperiment &experiment) const override
    {
        switch (number) {
        case 1:
            return {{QByteArray::number(experiment.size) + ',' + QByteArray::number(experiment.duration()) + ','
                   + experiment.startDate().fields() + ',' + experiment.stopDate().fields() + ','
                   + QByteArray::number(experiment.pauseTaken()) + ',' + QByteArray::number(experiment.interval)
                   + ",\"" + experiment.unit + '"'}};
        case 2:
            return {{expansionFields()}};
        case 3:
            return {{blocks(2, [&](int unit) { return averageFields(summary(experiment, unit)); }).mid(1)}};
        case 4:
            return {{blocks(6, [&](int unit) { return extremeFields(summary(experiment, unit)); }).mid(1)}};
        default:
            return {};
        }
    }

    /// Every expansion with its own serial number and calibration.
    QByteArray expansionFields() const
    {
        QByteArray text = QByteArray::number(m_units - 1);
        for (int unit = 1; unit < m_units; ++unit) {
            const QByteArray number = QByteArray::number(unit);
            text += ",\"" + serialNumber("TXE", m_seed * 10 + quint32(unit)) + "\",\"CAL-2025/20" + number
                    + "\",\"25/11/2" + number + "\",\"09:30:00-12\"";
        }
        return text;
    }

    /// A block for each unit that there may be, each behind a comma; those of absent units with empty fields.
    template <class Fields> QByteArray blocks(int width, Fields fields) const
    {
        QByteArray text;
        for (int unit = 0; unit < mostUnits; ++unit) {
            const bool present = unit < m_units && (unit == 0 || unit != m_gap);
            text += ',' + (present ? fields(unit) : QByteArray(width - 1, ','));
        }
        return text;
    }

    quint32 m_seed;
    int m_units;
    int m_gap;
};

} // namespace

std::unique_ptr<VirtualInstrument> simulatedThalvex4(quint32 seed, int expansions,
                                                     const QVector<SimulatedExperiment> &memory, int gap)
{
    return std::make_unique<SimulatedThalvex4>(
        VirtualInstrument::Identity{"THALVEX 4", serialNumber("TX4", seed), "2.31"}, seed,
        qBound(0, expansions, mostUnits - 1), gap, memory);
}
