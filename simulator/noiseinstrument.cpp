// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/noiseinstrument.h"

#include <algorithm>

namespace {

const char *const thirds[] = {
    "10.00",   "12.50",   "16.00",   "20.00",   "25.00",   "31.50",   "40.00",   "50.00",    "63.00",
    "80.00",   "100.00",  "125.00",  "160.00",  "200.00",  "250.00",  "315.00",  "400.00",   "500.00",
    "630.00",  "800.00",  "1000.00", "1250.00", "1600.00", "2000.00", "2500.00", "3150.00",  "4000.00",
    "5000.00", "6300.00", "8000.00", "10000.00", "12500.00", "16000.00", "20000.00"};

constexpr double octaveAboveThird = 4.8; // dB, of three thirds alike

} // namespace

NoiseInstrument::NoiseInstrument(Identity identity, quint32 seed, const QVector<SimulatedExperiment> &memory)
    : VirtualInstrument(std::move(identity), memory), m_noise(seed)
{
    addSetting("VFFQWGHT", "\"A\"", oneOf({"A", "C", "Z"}));
    addSetting("VFTMWGHT", "\"Slow\"", oneOf({"Slow", "Fast", "Impulse"}));
    addSetting("VFOCTAVE", "\"1/1\"", oneOf({"1/1", "1/3"}));
}

int NoiseInstrument::level(const SimulatedExperiment &experiment, int number) const
{
    return m_noise.at(experiment.startDate().seconds + experiment.elapsed(number));
}

QVector<int> NoiseInstrument::sortedLevels(const SimulatedExperiment &experiment) const
{
    QVector<int> sorted;
    for (int number = 1; number <= experiment.size; ++number)
        sorted.append(level(experiment, number));
    std::sort(sorted.begin(), sorted.end(), std::greater<>());
    return sorted;
}

QByteArray NoiseInstrument::exceeded(const QVector<int> &sorted, int percent)
{
    return sorted.isEmpty() ? QByteArray() : oneDecimal(sorted[sorted.size() * percent / 100]);
}

QByteArray NoiseInstrument::listLine(const SimulatedExperiment &experiment) const
{
    return VirtualInstrument::listLine(experiment) + ",\"" + experiment.name.toLatin1() + '"';
}

QByteArrayList NoiseInstrument::bandLines(const SimulatedExperiment &experiment, double leq, Bands octaves,
                                          Bands thirdOctaves) const
{
    const bool inOctaves = experiment.octaves == "1/1";
    if (!inOctaves && experiment.octaves != "1/3")
        return {};
    const Bands bands = inOctaves ? octaves : thirdOctaves;
    const int step = inOctaves ? 3 : 1;
    const double all = leq + (inOctaves ? octaveAboveThird : 0);
    const qint64 clock = experiment.startDate().seconds;
    QByteArrayList lines;
    for (int third = bands.first; third <= bands.last; third += step)
        lines.append(QByteArray::number((bands.last - bands.first) / step + 1) + ',' + QByteArray::number(third) + ",\""
                     + thirds[third] + "\"," + twoDecimals(all - m_noise.below(third, clock)));
    return lines;
}

/// Five minutes before; and after, unless it was but a single record.
QByteArray NoiseInstrument::checkFields(const SimulatedExperiment &experiment)
{
    const QByteArray before = experiment.startDate().later(-300).fields();
    if (experiment.size == 1)
        return "94.0,," + before + ",\"\",\"\"";
    return "94.0,93.8," + before + ',' + experiment.stopDate().later(300).fields();
}
