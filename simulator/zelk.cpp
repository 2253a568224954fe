// SPDX-License-Identifier: GPL-3.0-or-later
#include "simulator/course.h"
#include "simulator/families.h"

#include <cmath>

namespace {

constexpr std::array<Knot, 7> daylight = {{{0, 0}, {6, 0}, {9, 0.5}, {12, 1}, {15, 0.7}, {18.5, 0}, {24, 0}}};

/// What one quantity shows: at rest, more by day, swinging over minutes, and trembling.
struct Quantity {
    const char *name;
    const char *unit; // ISO 8859-1
    int decimals;
    double atRest, byDay, swing, tremble;
    bool resultant = false; // of the three in front of it
};

struct Item {
    const char *label, *type, *value, *unit;
};

/// A sensor module, and the place where it is used.
struct Module {
    const char *type, *subType, *place;
    QVector<Quantity> quantities;
    QVector<Item> configuration = {};
    bool hasLimit = false; // told as the mean of eight hours
};

const QVector<Module> &modules()
{
    static const Quantity illuminance = {"ILUM", "lx", 0, 320, 250, 20, 4};
    static const Quantity uva = {"UVA", "\xB5W/cm\xB2", 1, 0.4, 900, 40, 5};
    static const Quantity uvb = {"UVB", "\xB5W/cm\xB2", 2, 0.1, 31, 1.5, 0.2};
    static const Quantity uvi = {"UVI", "", 1, 0, 9, 0.3, 0};
    static const Quantity angle = {"ACC", "\xB0", 0, 12, 0, 3, 1};
    static const Quantity temperature = {"TEMP", "\xB0" "C", 1, 21, 6, 0.8, 0.1};
    static const Quantity duct = {"TEMP", "\xB0" "C", 1, 14.5, 0.5, 0.4, 0.1};
    static const Quantity humidity = {"HUM", "%", 1, 62, -14, 3, 0.2};
    static const Quantity pressure = {"PRESS", "hPa", 1, 1013.2, -1.5, 0.4, 0.1};
    static const Quantity airQuality = {"IAQ", "", 0, 48, 40, 12, 1};
    static const Quantity velocity = {"VEL", "m/s", 2, 1.8, 0, 0.6, 0.15};
    static const Quantity stel = {"STEL", "ppm", 1, 4, 3, 1.5, 0};
    const auto gas = [](double atRest, double byDay) { return Quantity{"CONC", "ppm", 1, atRest, byDay, byDay / 3, byDay / 20}; };
    const auto axes = [](const char *unit, std::array<const char *, 4> names) -> QVector<Quantity> {
        return {{names[0], unit, 2, 18, 1, 4, 0.3},
                {names[1], unit, 2, -6, 0, 5, 0.3},
                {names[2], unit, 2, -41.5, 0, 0, 0}, // never moves
                {names[3], unit, 2, 0, 0, 0, 0, true}};
    };
    static const QVector<Module> all = {
        {"LUX", "", "Escrit\xF3rio", {illuminance}, {{"LAMP", "s", "\"FLUOR\"", ""}}},
        {"LUX_UV", "", "Estufa 3", {illuminance, uva, uvb, uvi, angle}, {{"LAMP", "s", "\"SUN\"", ""}}},
        {"UV", "", "P\xE1tio", {uva, uvb, uvi}},
        {"AMB", "", "Sala de reuni\xF5" "es", {temperature, humidity, pressure, airQuality}},
        {"HVAC", "", "Duto 2, retorno", {velocity, duct}, {{"AREA", "f", "0.0625", "m\xB2"}}},
        {"HVAC_AMB", "", "Centro cir\xFArgico",
         {velocity, duct, humidity, temperature, humidity, pressure, airQuality, gas(420, 300)}},
        {"CO2", "", "Sala de aula", {gas(420, 780)}},
        {"GAS", "CO", "Garagem", {gas(2, 14), stel}, {}, true},
        {"GAS", "C2H6O", "Envase", {gas(30, 95), stel}, {}, true},
        {"GAS", "H2S", "Esgoto", {gas(0, 0), {"STEL", "ppm", 1, 0, 0, 0, 0}}, {}, true},
        {"GAS", "SO2", "Fundi\xE7\xE3o", {gas(0.2, 1.1), stel}, {}, true},
        {"GAS", "NO2", "Soldagem", {gas(0.1, 0.9), stel}, {}, true},
        {"GAS", "O3", "Copiadora", {gas(0.1, 0.2)}, {}, true},
        {"GAS", "VOC", "Pintura", {gas(3, 40), stel, temperature, humidity}, {}, true},
        {"MAG", "", "Subesta\xE7\xE3o", axes("\xB5T", {"MAGX", "MAGY", "MAGZ", "MAG"})},
        {"EMF", "", "Torre norte", axes("V/m", {"EMFX", "EMFY", "EMFZ", "EMF"})},
        {"RAD", "", "", {{"GAMMA", "\xB5Sv/h", 2, 0.12, 0, 0.02, 0.02}}},
        {"VOC", "", "Laborat\xF3rio", {gas(1.2, 2.5), airQuality}},
    };
    return all;
}

/// 254 with one decimal as "25.4".
QByteArray decimal(int value, int decimals)
{
    QByteArray digits = QByteArray::number(qAbs(value)).rightJustified(decimals + 1, '0');
    if (decimals > 0)
        digits.insert(digits.size() - decimals, '.');
    return value < 0 ? '-' + digits : digits;
}

int rounded(double value, int decimals)
{
    value /= 10;
    for (int i = 0; i < decimals; ++i)
        value *= 10;
    return tenths(value);
}

/// The logger with a module for everything that it can measure.
class SimulatedZelk final : public VirtualInstrument
{
public:
    SimulatedZelk(Identity identity, quint32 seed, const QVector<SimulatedExperiment> &memory)
        : VirtualInstrument(std::move(identity), memory), m_seed(seed), m_chance(seed)
    {
        addSetting("VFINTVL", "60", wholeNumber(1, 3599));
        addSetting("VFSENCTF", "\"25/11/18,10:00:00-12\",\"SEN-2025/042\"", isCalibration);
    }

private:
    /// It is written the other way round, and kept so.
    static bool isCalibration(const QByteArray &value)
    {
        const int border = value.indexOf("\",\"");
        return value.startsWith('"') && value.endsWith('"') && border > 0
               && WireDate::fromText(value.mid(border + 3, value.size() - border - 4));
    }

    /// That of the type; where none is told, each measurement has the next one.
    static const Module &moduleOf(const SimulatedExperiment &experiment)
    {
        const auto found = std::find_if(modules().begin(), modules().end(), [&](const Module &module) {
            return module.type == experiment.type && module.subType == experiment.subType;
        });
        return found != modules().end() ? *found : modules()[(experiment.index - 1) % modules().size()];
    }

    /// One whole number of the last decimal for each quantity.
    QVector<int> values(const SimulatedExperiment &experiment, int number) const
    {
        const qint64 clock = experiment.startDate().seconds + experiment.elapsed(number);
        const double light = curve(daylight, double(clock % 86400) / 3600);
        QVector<int> values;
        for (const Quantity &quantity : moduleOf(experiment).quantities) {
            const auto stream = quint64(values.size()) * 2;
            const double value = quantity.atRest + quantity.byDay * light
                                 + quantity.swing * m_chance.drift(stream, clock, 420)
                                 + quantity.tremble * m_chance.random(stream + 1, clock);
            values.append(rounded(quantity.atRest < 0 ? value : qMax(0.0, value), quantity.decimals));
            if (quantity.resultant)
                values.last() = resultant(values);
        }
        return values;
    }

    static int resultant(const QVector<int> &values)
    {
        double sum = 0;
        for (int i = values.size() - 4; i < values.size() - 1; ++i)
            sum += double(values[i]) * values[i];
        return int(std::sqrt(sum) + 0.5);
    }

    QByteArray listLine(const SimulatedExperiment &experiment) const override
    {
        return VirtualInstrument::listLine(experiment) + ',' + quoted(experiment.name) + ',' + typeFields(experiment);
    }

    QByteArrayList record(const SimulatedExperiment &experiment, int number) const override
    {
        const QVector<int> all = values(experiment, number);
        const QVector<Quantity> &quantities = moduleOf(experiment).quantities;
        const QByteArray start = QByteArray::number(experiment.index) + ',' + QByteArray::number(number) + ",0,"
                                 + QByteArray::number(all.size()) + ',';
        QByteArrayList lines{start + "0," + experiment.startDate().later(experiment.elapsed(number)).fields()};
        for (int i = 0; i < all.size(); ++i)
            lines.append(start + QByteArray::number(i + 1) + ',' + decimal(all[i], quantities[i].decimals));
        return lines;
    }

    Lines header(int number, const SimulatedExperiment &experiment) const override
    {
        switch (number) {
        case 1:
            return {{quoted(experiment.name) + ',' + QByteArray::number(experiment.duration()) + ','
                     + experiment.startDate().fields() + ',' + experiment.stopDate().fields() + ','
                     + QByteArray::number(experiment.pauseTaken()) + ',' + QByteArray::number(experiment.interval) + ','
                     + typeFields(experiment)}};
        case 2:
            return {{'"' + serialNumber("ZKS", m_seed + quint32(experiment.index)) + "\",\"SEN-2025/042\",\"25/11/18\",\"10:00:00-12\""}};
        case 3:
        case 4:
            return figureLines(number, experiment);
        case 5:
            return quantityLines(experiment);
        case 6:
            return itemLines(moduleOf(experiment).configuration);
        case 7:
            return evaluationLines(experiment);
        default:
            return {};
        }
    }

    static QByteArray quoted(const QString &text) { return '"' + text.toLatin1() + '"'; }

    static QByteArray typeFields(const SimulatedExperiment &experiment)
    {
        const Module &module = moduleOf(experiment);
        return QByteArray("\"") + module.type + "\",\"" + module.subType + '"';
    }

    struct Summary {
        QVector<double> mean;
        QVector<int> most, least;
    };
    Summary summary(const SimulatedExperiment &experiment) const
    {
        Summary result;
        result.most = result.least = values(experiment, 1);
        result.mean.fill(0, result.most.size());
        for (int number = 1; number <= experiment.size; ++number) {
            const QVector<int> now = values(experiment, number);
            for (int i = 0; i < now.size(); ++i) {
                result.most[i] = qMax(result.most[i], now[i]);
                result.least[i] = qMin(result.least[i], now[i]);
                result.mean[i] += double(now[i]) / experiment.size;
            }
        }
        for (int i = 0; i < result.mean.size(); ++i)
            result.mean[i] /= std::pow(10, moduleOf(experiment).quantities[i].decimals);
        return result;
    }

    /// The averages, or the highest and lowest values.
    QByteArrayList figureLines(int header, const SimulatedExperiment &experiment) const
    {
        const Summary all = summary(experiment);
        const QVector<Quantity> &quantities = moduleOf(experiment).quantities;
        QByteArrayList lines;
        for (int i = 0; i < quantities.size(); ++i) {
            const int decimals = quantities[i].decimals;
            lines.append(place(i, quantities.size())
                         + (header == 3 ? twoDecimals(all.mean[i])
                                        : decimal(all.most[i], decimals) + ',' + decimal(all.least[i], decimals)));
        }
        return lines;
    }

    static QByteArray place(int i, int count) { return QByteArray::number(count) + ',' + QByteArray::number(i + 1) + ','; }

    static QByteArrayList quantityLines(const SimulatedExperiment &experiment)
    {
        const QVector<Quantity> &quantities = moduleOf(experiment).quantities;
        QByteArrayList lines;
        for (int i = 0; i < quantities.size(); ++i)
            lines.append(place(i, quantities.size()) + '"' + quantities[i].name + "\",\"" + quantities[i].unit + '"');
        return lines;
    }

    static QByteArrayList itemLines(const QVector<Item> &items)
    {
        QByteArrayList lines;
        for (int i = 0; i < items.size(); ++i)
            lines.append(place(i, items.size()) + '"' + items[i].label + "\",\"" + items[i].type + "\"," + items[i].value
                         + ",\"" + items[i].unit + '"');
        return lines.isEmpty() ? QByteArrayList{"0"} : lines;
    }

    QByteArrayList evaluationLines(const SimulatedExperiment &experiment) const
    {
        if (!moduleOf(experiment).hasLimit)
            return itemLines({});
        const double shifts = double(experiment.duration()) / (8 * 3600);
        const QByteArray mean = twoDecimals(summary(experiment).mean.first() * shifts);
        return itemLines({{"TWA", "f", mean.constData(), "ppm"}});
    }

    quint32 m_seed;
    Chance m_chance;
};

} // namespace

QVector<SimulatedExperiment> everySensor()
{
    constexpr int sizes[] = {60, 1, 25, 480, 30};
    QVector<SimulatedExperiment> memory;
    for (const Module &module : modules()) {
        SimulatedExperiment experiment;
        experiment.size = sizes[memory.size() % int(std::size(sizes))];
        experiment.start = "26/04/" + QByteArray::number(memory.size() + 1).rightJustified(2, '0') + ",08:30:00-12";
        experiment.name = QString::fromLatin1(module.place);
        experiment.type = module.type;
        experiment.subType = module.subType;
        memory.append(experiment);
    }
    return memory;
}

std::unique_ptr<VirtualInstrument> simulatedZelk(quint32 seed, const QVector<SimulatedExperiment> &memory)
{
    return std::make_unique<SimulatedZelk>(VirtualInstrument::Identity{"ZELK", serialNumber("ZLK", seed), "1.03"}, seed,
                                           memory);
}
