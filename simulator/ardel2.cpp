// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/families.h"
#include "simulator/noiseinstrument.h"

#include <QRegularExpression>

#include <array>
#include <cmath>

namespace {

struct Criterion {
    const char *label;
    int action, criterion, exchange; ///< dB
};
/// Those that the stored measurements were made with. The third is the user's, who has set others since.
constexpr std::array<Criterion, 3> criteria = {{{"NHO-01", 80, 85, 3}, {"NR-15", 80, 85, 5}, {"USER", 75, 87, 4}}};

constexpr double referenceDay = 8 * 3600; // seconds
constexpr int loudPeak = 970;             // tenths of dB: a record as loud has had a peak of 115 dB
constexpr int places = 10;                // of schedules

/// For each record the seconds at the criterion level that weigh as much as all records up to it.
using Weights = QVector<double>;

/// Three dosimeters over one microphone, and schedules.
class SimulatedArdel2 final : public NoiseInstrument
{
public:
    SimulatedArdel2(Identity identity, quint32 seed, const QVector<SimulatedExperiment> &memory)
        : NoiseInstrument(std::move(identity), seed, memory)
    {
        addSetting("VFTRHLVL", "80", wholeNumber(0, 90));
        addSetting("VFCRTLVL", "85", wholeNumber(80, 90));
        addSetting("VFXCHRAT", "3", wholeNumber(3, 6));
        addSetting("VFXPDUR", "28800", wholeNumber(60, 32400));
        addCommand("AT+VFDOSCFG?", [this](const QByteArray &) { return criteriaOfToday(); });
        addCommand("AT+VFSCH=", [this](const QByteArray &argument) { return schedules(argument.split(',')); });
        setSetting("VFSCH", "0");
        setSetting(place(0), "\"Turno A\",\"26/03/05,08:00:00-12\",\"26/03/05,12:00:00-12\",\"26/03/05,13:00:00-12\","
                             "\"26/03/05,17:00:00-12\"");
        setSetting(place(3), "\"Noite n\xBA 2\",\"26/03/12,22:00:00-12\",,,\"26/03/13,06:00:00-12\"");
    }

    void eraseMemory() override
    {
        NoiseInstrument::eraseMemory();
        m_weights.clear();
    }

private:
    static QByteArray place(int number) { return "VFSCH," + QByteArray::number(number); }

    /// The user's first, to show that their order is free.
    Lines criteriaOfToday() const
    {
        const QByteArray weightings = ',' + setting("VFTMWGHT") + ',' + setting("VFFQWGHT");
        const auto line = [&](int number, const QByteArray &levels) -> QByteArray {
            return QByteArray::number(number) + ",\"" + criteria[std::size_t(number - 1)].label + "\"," + levels + weightings;
        };
        const auto fixed = [&](int number) { return line(number, levels(criteria[std::size_t(number - 1)])); };
        return QByteArrayList{line(3, setting("VFTRHLVL") + ',' + setting("VFCRTLVL") + ',' + setting("VFXCHRAT")),
                              fixed(1), fixed(2)};
    }

    static QByteArray levels(const Criterion &criterion)
    {
        return QByteArray::number(criterion.action) + ',' + QByteArray::number(criterion.criterion) + ','
               + QByteArray::number(criterion.exchange);
    }

    /// Reads (0), writes (1) or clears (2) a place, tells whether the schedules are followed or switches that (3).
    Lines schedules(const QByteArrayList &fields)
    {
        const QByteArray kind = fields.first();
        const QByteArray number = fields.value(1);
        if (kind == "3")
            return fields.size() == 1 ? Lines({"3," + setting("VFSCH")}) : switched(fields);
        if (number.size() != 1 || number[0] < '0' || number[0] >= '0' + places)
            return {};
        const QByteArray key = place(number.toInt());
        if (kind == "0" && fields.size() == 2)
            return QByteArrayList{"0," + number + (setting(key).isEmpty() ? QByteArray() : ',' + setting(key))};
        const QByteArray value = fields.mid(2).join(',');
        if (kind != "1" && (kind != "2" || fields.size() > 2))
            return {};
        if (kind == "1" && !isSchedule(value))
            return {};
        setSetting(key, value);
        return QByteArrayList();
    }

    Lines switched(const QByteArrayList &fields)
    {
        if (fields.size() != 2 || (fields[1] != "0" && fields[1] != "1"))
            return {};
        setSetting("VFSCH", fields[1]);
        return QByteArrayList();
    }

    /// A label and four dates, of which the two in the middle may be missing together.
    static bool isSchedule(const QByteArray &value)
    {
        static const QString date = QStringLiteral("\"([^\"]*)\"");
        static const QRegularExpression form(QLatin1String("^\"[^\"]{0,11}\",%1,(?:,|%1,%1),%1$").arg(date));
        const QRegularExpressionMatch found = form.match(QString::fromLatin1(value));
        if (!found.hasMatch())
            return false;
        const QStringList dates = found.capturedTexts().mid(1);
        return std::all_of(dates.begin(), dates.end(), [](const QString &text) {
            return text.isEmpty() || WireDate::fromText(text.toLatin1());
        });
    }

    const Weights &weights(const SimulatedExperiment &experiment, std::size_t dosimeter) const
    {
        const auto key = qMakePair(experiment.index, int(dosimeter));
        const auto known = m_weights.find(key);
        if (known != m_weights.end())
            return *known;
        const Criterion &by = criteria[dosimeter];
        Weights weights{0};
        for (int number = 1; number <= experiment.size; ++number) {
            const int now = level(experiment, number);
            const double above = (now / 10.0 - by.criterion) / by.exchange;
            weights.append(weights.last() + (now < 10 * by.action ? 0 : experiment.interval * std::exp2(above)));
        }
        return *m_weights.insert(key, weights);
    }

    /// The level that would weigh as much over `seconds`; empty when nothing has been as loud as the action level.
    static QByteArray average(const Criterion &by, double weight, double seconds)
    {
        return weight > 0 ? twoDecimals(by.criterion + by.exchange * std::log2(weight / seconds)) : QByteArray();
    }

    QByteArrayList record(const SimulatedExperiment &experiment, int number) const override
    {
        QByteArray line = recordStart(experiment, number);
        for (std::size_t dosimeter = 0; dosimeter < criteria.size(); ++dosimeter)
            line += ',' + average(criteria[dosimeter], weights(experiment, dosimeter)[number],
                                  double(number) * experiment.interval);
        return {line + ',' + oneDecimal(level(experiment, number)) + ",0"};
    }

    Lines header(int number, const SimulatedExperiment &experiment) const override
    {
        switch (number) {
        case 1:
            return {{generalFields(experiment)}};
        case 2:
        case 3:
        case 4:
            return {{doseFields(experiment, std::size_t(number - 2))}};
        case 5:
            return {{statisticFields(experiment)}};
        case 6:
            return bandLines(experiment, leq(experiment), {8, 32}, {7, 32});
        case 7:
            return {{checkFields(experiment)}};
        default:
            return {};
        }
    }

    /// Without octave analysis the last field is not there.
    static QByteArray generalFields(const SimulatedExperiment &experiment)
    {
        const bool octaves = experiment.octaves == "1/1" || experiment.octaves == "1/3";
        return '"' + experiment.name.toLatin1() + "\"," + QByteArray::number(experiment.interval) + ','
               + levels(criteria.back()) + ",\"Slow\",\"A\"" + (octaves ? ",\"" + experiment.octaves + '"' : QByteArray());
    }

    QByteArray doseFields(const SimulatedExperiment &experiment, std::size_t dosimeter) const
    {
        const Criterion &by = criteria[dosimeter];
        const double weight = weights(experiment, dosimeter).last();
        return twoDecimals(100 * weight / referenceDay) + ',' + average(by, weight, referenceDay) + ','
               + average(by, weight, double(experiment.duration())) + ",\"" + by.label + '"';
    }

    QByteArray statisticFields(const SimulatedExperiment &experiment) const
    {
        const QVector<int> sorted = sortedLevels(experiment);
        const auto peaks = std::count_if(sorted.begin(), sorted.end(), [](int now) { return now >= loudPeak; });
        return exceeded(sorted, 10) + ',' + exceeded(sorted, 50) + ',' + exceeded(sorted, 90) + ','
               + QByteArray::number(int(peaks)) + ',' + QByteArray::number(experiment.duration()) + ','
               + experiment.startDate().fields() + ',' + experiment.stopDate().fields() + ','
               + QByteArray::number(experiment.pauseTaken());
    }

    double leq(const SimulatedExperiment &experiment) const
    {
        double energy = 0;
        for (int number = 1; number <= experiment.size; ++number)
            energy += std::pow(10, level(experiment, number) / 100.0);
        return energy > 0 ? 10 * std::log10(energy / experiment.size) : 0;
    }

    mutable QHash<QPair<int, int>, Weights> m_weights; ///< by measurement and dosimeter
};

} // namespace

std::unique_ptr<VirtualInstrument> simulatedArdel2(quint32 seed, const QVector<SimulatedExperiment> &memory)
{
    return std::make_unique<SimulatedArdel2>(
        VirtualInstrument::Identity{"ARDEL 2", serialNumber("ADL", seed), "2.06"}, seed, memory);
}
