// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/heatstressinstrument.h"

namespace {

constexpr int longestInterval = 7200; // seconds

} // namespace

HeatStressInstrument::HeatStressInstrument(Identity identity, quint32 seed, int units,
                                           const QVector<SimulatedExperiment> &memory)
    : VirtualInstrument(std::move(identity), memory)
{
    for (int unit = 0; unit < units; ++unit)
        m_climates.append(Climate(seed, unit));
    addSetting("VFUNIT", "\"C\"", oneOf({"C", "F"}));
    addSetting("VFINTVL", "60", wholeNumber(1, longestInterval));
}

void HeatStressInstrument::eraseMemory()
{
    m_summaries.clear();
    VirtualInstrument::eraseMemory();
}

HeatSample HeatStressInstrument::sample(const SimulatedExperiment &experiment, int number, int unit) const
{
    const qint64 clock = experiment.startDate().seconds + experiment.elapsed(number);
    return m_climates[unit].at(clock, experiment.measuringSince(number), experiment.unit);
}

HeatStressInstrument::Summary HeatStressInstrument::summary(const SimulatedExperiment &experiment, int unit) const
{
    const QPair<int, int> key(experiment.index, unit);
    const auto known = m_summaries.constFind(key);
    if (known != m_summaries.constEnd())
        return *known;

    Summary result;
    qint64 indoor = 0;
    qint64 outdoor = 0;
    for (int number = 1; number <= experiment.size; ++number) {
        const HeatSample now = sample(experiment, number, unit);
        const auto widen = [number](Range &range, int value) {
            range = number == 1 ? Range{value, value} : Range{qMax(range.most, value), qMin(range.least, value)};
        };
        widen(result.wet, now.wet);
        widen(result.dry, now.dry);
        widen(result.globe, now.globe);
        indoor += now.indoor;
        outdoor += now.outdoor;
    }
    if (experiment.size > 0) {
        result.indoor = double(indoor) / 10 / experiment.size;
        result.outdoor = double(outdoor) / 10 / experiment.size;
    }
    m_summaries.insert(key, result);
    return result;
}

QByteArray HeatStressInstrument::heatFields(const HeatSample &sample)
{
    return oneDecimal(sample.wet) + ',' + oneDecimal(sample.dry) + ',' + oneDecimal(sample.globe) + ','
           + oneDecimal(sample.indoor) + ',' + oneDecimal(sample.outdoor);
}

QByteArray HeatStressInstrument::averageFields(const Summary &summary)
{
    return twoDecimals(summary.indoor) + ',' + twoDecimals(summary.outdoor);
}

QByteArray HeatStressInstrument::extremeFields(const Summary &summary)
{
    QByteArrayList fields;
    for (const Range &range : {summary.wet, summary.dry, summary.globe})
        fields << twoDecimals(range.most / 10.0) << twoDecimals(range.least / 10.0);
    return fields.join(',');
}
