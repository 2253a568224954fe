// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/octavebands.h"

#include <QtNumeric>

#include <array>
#include <cmath>

namespace {

using Corrections = std::array<double, OctaveBands::Thirds>;

constexpr Corrections curveA = {-70.4, -63.4, -56.7, -50.5, -44.7, -39.4, -34.6, -30.2, -26.2, -22.5, -19.1, -16.1,
                                -13.4, -10.9, -8.6,  -6.6,  -4.8,  -3.2,  -1.9,  -0.8,  0.0,   0.6,   1.0,   1.2,
                                1.3,   1.2,   1.0,   0.5,   -0.1,  -1.1,  -2.5,  -4.3,  -6.6,  -9.3,  0.0,   0.0};
constexpr Corrections curveC = {-14.3, -11.2, -8.5, -6.2, -4.4, -3.0, -2.0, -1.3, -0.8, -0.5, -0.3, -0.2,
                                -0.1,  0.0,   0.0,  0.0,  0.0,  0.0,  0.0,  0.0,  0.0,  0.0,  -0.1, -0.2,
                                -0.3,  -0.5,  -0.8, -1.3, -2.0, -3.0, -4.4, -6.2, -8.5, -11.2, 0.0, 0.0};

/// The third octave of the first band that instruments begin with.
std::optional<int> startIndex(const QString &frequency)
{
    constexpr std::pair<double, int> starts[] = {{63, 8}, {31.5, 5}, {32, 5}, {50, 7}};
    for (const auto &[start, index] : starts) {
        if (frequency.toDouble() == start)
            return index;
    }
    return std::nullopt;
}

double twoDecimals(double value)
{
    return std::round(value * 100) / 100;
}

} // namespace

OctaveBands::Analysis OctaveBands::analysisOf(const QString &octaveAnalysis, Analysis otherwise)
{
    if (octaveAnalysis == QLatin1String("1/1"))
        return Analysis::Octave;
    return octaveAnalysis == QLatin1String("1/3") ? Analysis::Third : otherwise;
}

double OctaveBands::correction(Weighting weighting, int index)
{
    if (weighting == Weighting::Z || index < 0 || index >= Thirds)
        return 0;
    return (weighting == Weighting::A ? curveA : curveC)[std::size_t(index)];
}

QVector<double> OctaveBands::levels(const QVector<LeqPerOctave> &bands, Analysis analysis, Weighting weighting,
                                    std::optional<int> otherStart)
{
    const std::optional<int> known = startIndex(bands.isEmpty() ? QString() : bands.first().frequency);
    const std::optional<int> start = known ? known : otherStart;
    if (weighting != Weighting::Z && (!start || analysis == Analysis::Unknown))
        return {};
    const int step = analysis == Analysis::Octave ? 3 : 1;
    QVector<double> levels;
    for (int band = 0; band < bands.size(); ++band) {
        bool measured = false;
        const double level = bands[band].leq().toDouble(&measured);
        levels.append(measured ? twoDecimals(level) + correction(weighting, start.value_or(0) + band * step) : qQNaN());
    }
    return levels;
}

QString OctaveBands::label(const QString &frequency, const QLocale &locale)
{
    const qint64 tenths = std::llround(frequency.toDouble() * 10);
    const auto text = [&](double value, int decimals) { return locale.toString(value, 'f', decimals); };
    if (tenths < 10000)
        return text(double(tenths) / 10, tenths % 10 == 0 ? 0 : 1) + QLatin1Char(' ');
    const int decimals = tenths % 10000 == 0 ? 0 : tenths % 1000 == 0 ? 1 : 2;
    return text(double(tenths) / 10000, decimals) + QLatin1String(" k");
}
