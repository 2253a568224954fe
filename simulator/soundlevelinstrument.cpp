// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/soundlevelinstrument.h"

#include <algorithm>
#include <cmath>

namespace {

const char *const thirds[] = {
    "10.00",   "12.50",   "16.00",   "20.00",   "25.00",   "31.50",   "40.00",   "50.00",    "63.00",
    "80.00",   "100.00",  "125.00",  "160.00",  "200.00",  "250.00",  "315.00",  "400.00",   "500.00",
    "630.00",  "800.00",  "1000.00", "1250.00", "1600.00", "2000.00", "2500.00", "3150.00",  "4000.00",
    "5000.00", "6300.00", "8000.00", "10000.00", "12500.00", "16000.00", "20000.00"};

constexpr double octaveAboveThird = 4.8; // dB, of three thirds alike

} // namespace

SoundLevelInstrument::SoundLevelInstrument(Identity identity, quint32 seed, const QVector<SimulatedExperiment> &memory)
    : VirtualInstrument(std::move(identity), memory), m_noise(seed)
{
    addSetting("VFFQWGHT", "\"A\"", oneOf({"A", "C", "Z"}));
    addSetting("VFTMWGHT", "\"Slow\"", oneOf({"Slow", "Fast", "Impulse"}));
    addSetting("VFOCTAVE", "\"1/1\"", oneOf({"1/1", "1/3"}));
}

int SoundLevelInstrument::level(const SimulatedExperiment &experiment, int number) const
{
    return m_noise.at(experiment.startDate().seconds + experiment.elapsed(number));
}

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
        result.sorted.append(now);
        energy += std::pow(10, now / 100.0);
    }
    result.mostDate = experiment.startDate().later(experiment.elapsed(loudest)).fields();
    if (result.sorted.isEmpty())
        return result;
    std::sort(result.sorted.begin(), result.sorted.end(), std::greater<>());
    result.leq = 10 * std::log10(energy / experiment.size);
    result.exposure = result.leq + 10 * std::log10(double(experiment.duration()));
    result.least = result.sorted.last();
    return result;
}

QByteArray SoundLevelInstrument::listLine(const SimulatedExperiment &experiment) const
{
    return VirtualInstrument::listLine(experiment) + ",\"" + experiment.name.toLatin1() + '"';
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
    case 3:
        return bandLines(experiment);
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

/// One line for each band, from 31.5 Hz in octaves and from 50 Hz in thirds; without analysis a line that counts none.
QByteArrayList SoundLevelInstrument::bandLines(const SimulatedExperiment &experiment) const
{
    const bool octaves = experiment.octaves == "1/1";
    if (!octaves && experiment.octaves != "1/3")
        return {"0"};
    const int first = octaves ? 5 : 7;
    const int last = octaves ? 32 : 30;
    const int step = octaves ? 3 : 1;
    const double all = summary(experiment).leq + (octaves ? octaveAboveThird : 0);
    const qint64 clock = experiment.startDate().seconds;
    QByteArrayList lines;
    for (int third = first; third <= last; third += step)
        lines.append(QByteArray::number((last - first) / step + 1) + ',' + QByteArray::number(third) + ",\""
                     + thirds[third] + "\"," + twoDecimals(all - m_noise.below(third, clock)));
    return lines;
}

/// Five minutes before; and after, unless it was but a single record.
QByteArray SoundLevelInstrument::checkFields(const SimulatedExperiment &experiment) const
{
    const QByteArray before = experiment.startDate().later(-300).fields();
    if (experiment.size == 1)
        return "94.0,," + before + ",\"\",\"\"";
    return "94.0,93.8," + before + ',' + experiment.stopDate().later(300).fields();
}

QByteArray SoundLevelInstrument::statisticFields(const SimulatedExperiment &experiment) const
{
    const QVector<int> sorted = summary(experiment).sorted;
    QByteArrayList fields;
    for (const int percent : {5, 10, 50, 90, 95})
        fields.append(sorted.isEmpty() ? QByteArray() : oneDecimal(sorted[sorted.size() * percent / 100]));
    return fields.join(',');
}
