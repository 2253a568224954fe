// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/vibration.h"

#include <cmath>

namespace {

constexpr int axes = 3;
constexpr double handFactors[axes] = {1, 1, 1};
constexpr double bodyFactors[axes] = {1.4, 1.4, 1};
const QByteArrayList handBands = {"8.00", "16.00", "31.50", "63.00", "125.00", "250.00", "500.00", "1000.00"};
const QByteArrayList bodyBands = {"0.50", "0.63", "0.80", "1.00", "1.25",  "1.60",  "2.00",  "2.50",
                                  "3.15", "4.00", "5.00", "6.30", "8.00",  "10.00", "12.50", "16.00",
                                  "20.00", "25.00", "31.50", "40.00", "50.00", "63.00", "80.00"};

/// One axis in one record.
struct AxisSample {
    double acceleration = 0; ///< m/s², with three decimals
    double crest = 0;        ///< with two
    double dose = 0;         ///< m/s^1.75, with three
};

/// One axis over a measurement.
struct AxisSummary {
    double most = 0;
    double least = 0;
    double peak = 0;
    double sum = 0;         ///< of the accelerations
    double fourthPowers = 0; ///< of the doses
    double crest = 0;
};

double rounded(double value)
{
    return std::round(value * 1000) / 1000;
}

/// The meter of vibration. Every second measurement is one of the whole body, unless its type says otherwise. What the
/// headers tell is that of the records.
class SimulatedLomtrix final : public VirtualInstrument
{
public:
    SimulatedLomtrix(Identity identity, quint32 seed, const QVector<SimulatedExperiment> &memory)
        : VirtualInstrument(std::move(identity), memory), m_vibration(seed)
    {
        addSetting("VFINTVL", "1", wholeNumber(0, 86400));
    }

private:
    static bool isWholeBody(const SimulatedExperiment &experiment)
    {
        return experiment.type.isEmpty() ? experiment.index % 2 == 0 : experiment.type == "B";
    }
    static const double *factors(const SimulatedExperiment &experiment)
    {
        return isWholeBody(experiment) ? bodyFactors : handFactors;
    }

    /// The first of all tells its type as older instruments do, for which there were but hands.
    QByteArray listLine(const SimulatedExperiment &experiment) const override
    {
        QByteArray type = experiment.type;
        if (type.isEmpty())
            type = isWholeBody(experiment) ? "B" : experiment.index == 1 ? " " : "H";
        return VirtualInstrument::listLine(experiment) + ",\"" + experiment.name.toLatin1() + "\",\"" + type + '"';
    }

    AxisSample sample(const SimulatedExperiment &experiment, int number, int axis) const
    {
        const qint64 clock = experiment.startDate().seconds + experiment.elapsed(number);
        AxisSample now;
        now.acceleration = m_vibration.at(clock, axis, isWholeBody(experiment)) / 1000.0;
        now.crest = m_vibration.crest(clock, axis) / 100.0;
        now.dose = rounded(now.acceleration * 1.2 * std::pow(experiment.interval, 0.25));
        return now;
    }

    /// The acceleration of the axes together, weighed.
    double together(const SimulatedExperiment &experiment, int number) const
    {
        double squares = 0;
        for (int axis = 0; axis < axes; ++axis) {
            const double weighed = factors(experiment)[axis] * sample(experiment, number, axis).acceleration;
            squares += weighed * weighed;
        }
        return rounded(std::sqrt(squares));
    }

    /// Accelerations, crest factors, doses, each on the three axes, and the acceleration of them together.
    QByteArrayList record(const SimulatedExperiment &experiment, int number) const override
    {
        QByteArray accelerations, crests, doses;
        for (int axis = 0; axis < axes; ++axis) {
            const AxisSample now = sample(experiment, number, axis);
            accelerations += ',' + threeDecimals(now.acceleration);
            crests += ',' + twoDecimals(now.crest);
            doses += ',' + threeDecimals(now.dose);
        }
        return {recordStart(experiment, number) + ',' + QByteArray::number(experiment.interval) + accelerations + crests
                + doses + ',' + threeDecimals(together(experiment, number))};
    }

    Lines header(int number, const SimulatedExperiment &experiment) const override
    {
        switch (number) {
        case 1:
            return {{generalFields(experiment)}};
        case 2:
            return {{doseFields(experiment)}};
        case 3:
            return {{statisticFields(experiment)}};
        case 4:
            return bandLines(experiment);
        case 5:
            return {{"\"ACC-3\",\"S-00417\",10.02,9.98,10.05"}};
        default:
            return {};
        }
    }

    QByteArray generalFields(const SimulatedExperiment &experiment) const
    {
        const bool body = isWholeBody(experiment);
        QByteArray k;
        for (int axis = 0; axis < axes; ++axis)
            k += ',' + twoDecimals(factors(experiment)[axis]);
        return '"' + experiment.name.toLatin1() + "\"," + experiment.startDate().fields() + ','
               + experiment.stopDate().fields() + ',' + QByteArray::number(experiment.interval) + ','
               + QByteArray::number(experiment.duration()) + ',' + QByteArray::number(experiment.pauseTaken())
               + ",\"Slow\"," + (body ? R"("Wd","Wd","Wk")" : R"("Wh","Wh","Wh")") + k
               + (body ? ",0,\"WBV\"" : ",1,\"HAV\"");
    }

    AxisSummary summary(const SimulatedExperiment &experiment, int axis) const
    {
        AxisSummary all;
        for (int number = 1; number <= experiment.size; ++number) {
            const AxisSample now = sample(experiment, number, axis);
            all.most = qMax(all.most, now.acceleration);
            all.least = number == 1 ? now.acceleration : qMin(all.least, now.acceleration);
            all.peak = qMax(all.peak, now.acceleration * now.crest);
            all.sum += now.acceleration;
            all.fourthPowers += std::pow(now.dose, 4);
            all.crest = qMax(all.crest, now.crest);
        }
        return all;
    }

    /// Over the whole measurement: the root of the mean square.
    double acceleration(const SimulatedExperiment &experiment) const
    {
        double squares = 0;
        for (int number = 1; number <= experiment.size; ++number)
            squares += std::pow(together(experiment, number), 2);
        return experiment.size > 0 ? std::sqrt(squares / experiment.size) : 0;
    }

    QByteArray doseFields(const SimulatedExperiment &experiment) const
    {
        QByteArray doses, crests;
        for (int axis = 0; axis < axes; ++axis) {
            const AxisSummary all = summary(experiment, axis);
            doses += ',' + threeDecimals(std::pow(all.fourthPowers, 0.25));
            crests += ',' + twoDecimals(all.crest);
        }
        return threeDecimals(acceleration(experiment)) + doses + crests;
    }

    /// Highest, lowest, peak, peak to peak and average, each on the three axes.
    QByteArray statisticFields(const SimulatedExperiment &experiment) const
    {
        QByteArrayList most, least, peak, swing, average;
        for (int axis = 0; axis < axes; ++axis) {
            const AxisSummary all = summary(experiment, axis);
            most.append(threeDecimals(all.most));
            least.append(threeDecimals(all.least));
            peak.append(threeDecimals(all.peak));
            swing.append(threeDecimals(1.8 * all.peak));
            average.append(threeDecimals(all.sum / qMax(1, experiment.size)));
        }
        return (most + least + peak + swing + average).join(',');
    }

    /// One line for each band, whose squares come to that of the whole; without analysis a line that counts none.
    QByteArrayList bandLines(const SimulatedExperiment &experiment) const
    {
        if (experiment.octaves != "1/1" && experiment.octaves != "1/3")
            return {"0"};
        const QByteArrayList &bands = isWholeBody(experiment) ? bodyBands : handBands;
        double shares = 0;
        for (int band = 0; band < bands.size(); ++band)
            shares += m_vibration.share(band, bands.size());
        const double all = acceleration(experiment);
        QByteArrayList lines;
        for (int band = 0; band < bands.size(); ++band)
            lines.append(QByteArray::number(bands.size()) + ',' + QByteArray::number(band + 1) + ",\"" + bands[band] + "\","
                         + threeDecimals(all * std::sqrt(m_vibration.share(band, bands.size()) / shares)));
        return lines;
    }

    static QByteArray threeDecimals(double value) { return QByteArray::number(value, 'f', 3); }

    Vibration m_vibration;
};

} // namespace

std::unique_ptr<VirtualInstrument> simulatedLomtrix(quint32 seed, const QVector<SimulatedExperiment> &memory)
{
    return std::make_unique<SimulatedLomtrix>(VirtualInstrument::Identity{"LOMTRIX", serialNumber("LMX", seed), "2.07"},
                                              seed, memory);
}
