// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/soundlevelinstrument.h"

#include <cmath>

SoundLevelInstrument::Summary SoundLevelInstrument::summary(const SimulatedExperiment &experiment) const
{
    Summary result;
    double energy = 0;
    int loudest = 1;
    for (int number = 1; number <= experiment.size; ++number) {
        const int now = level(experiment, number);
        if (number == 1 || now > result.most) {
            result.most = now;
            loudest = number;
        }
        result.least = number == 1 ? now : qMin(result.least, now);
        energy += std::pow(10, now / 100.0);
    }
    result.mostDate = experiment.startDate().later(experiment.elapsed(loudest)).fields();
    if (experiment.size == 0)
        return result;
    result.leq = 10 * std::log10(energy / experiment.size);
    result.exposure = result.leq + 10 * std::log10(double(experiment.duration()));
    return result;
}

QByteArrayList SoundLevelInstrument::record(const SimulatedExperiment &experiment, int number) const
{
    return {recordStart(experiment, number) + ',' + oneDecimal(level(experiment, number))};
}

VirtualInstrument::Lines SoundLevelInstrument::header(int number, const SimulatedExperiment &experiment) const
{
    switch (number) {
    case 1:
        return {{generalFields(experiment)}};
    case 2:
        return levelLines(experiment);
    case 3: {
        // From 31.5 Hz in octaves and from 50 Hz in thirds; without analysis a line that counts none.
        const QByteArrayList lines = bandLines(experiment, summary(experiment).leq, {5, 32}, {7, 30});
        return lines.isEmpty() ? QByteArrayList{"0"} : lines;
    }
    case 4:
        return {{checkFields(experiment)}};
    case 5:
        return {{statisticFields(experiment)}};
    default:
        return {};
    }
}

QByteArray SoundLevelInstrument::generalFields(const SimulatedExperiment &experiment) const
{
    return '"' + experiment.name.toLatin1() + "\"," + QByteArray::number(experiment.duration()) + ','
           + experiment.startDate().fields() + ',' + experiment.stopDate().fields() + ','
           + QByteArray::number(experiment.pauseTaken()) + ',' + QByteArray::number(experiment.interval)
           + ",\"Slow\",\"A\",\"" + experiment.octaves + '"';
}

QByteArray SoundLevelInstrument::statisticFields(const SimulatedExperiment &experiment) const
{
    const QVector<int> sorted = sortedLevels(experiment);
    QByteArrayList fields;
    for (const int percent : {5, 10, 50, 90, 95})
        fields.append(exceeded(sorted, percent));
    return fields.join(',');
}
