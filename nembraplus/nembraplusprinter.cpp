// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembraplus/nembraplusprinter.h"

#include "nembraplus/nembrapluslog.h"
#include "nembraplus/nembraplusresults.h"

namespace {

const NembraPlusResults &all(const SoundLevelResults &results)
{
    return static_cast<const NembraPlusResults &>(results);
}

bool isManual(const SoundLevelResults &results)
{
    return all(results).mode() == QLatin1String("MANUAL");
}

} // namespace

ReportParameters NembraPlusPrinter::familyParameters()
{
    return {
        {"ckbResZ", &m_ckbRes[Z]},       {"ckbResC", &m_ckbRes[C]},       {"ckbResA", &m_ckbRes[A]},
        {"ckbMaxMinZ", &m_ckbMaxMin[Z]}, {"ckbMaxMinC", &m_ckbMaxMin[C]}, {"ckbMaxMinA", &m_ckbMaxMin[A]},
        {"ckbStatistics", &m_ckbStatistics},
    };
}

SoundLevelPrinter::Levels NembraPlusPrinter::pointLevels(const SoundLevelResults &results) const
{
    const QVector<FreqWeightedOutputLevels> weighted = all(results).freqWeightedOutput();
    return {
        {QStringLiteral("Aeq"), {}, weighted[A].leq},
        {QStringLiteral("AFmax"), {}, weighted[A].fast.max},
        {QStringLiteral("Cpeak"), {}, weighted[C].peak},
    };
}

void NembraPlusPrinter::drawFigures(const Experiment &experiment)
{
    const QVector<FreqWeightedOutputLevels> weighted = all(resultsOf(experiment)).freqWeightedOutput();
    // A section with a column for each weighting that is asked for.
    const auto figures = [&](const QString &title, const bool (&on)[WeightingCount], const auto &levelsOf) {
        QVector<Levels> columns;
        for (const Weighting weighting : {Z, C, A}) {
            if (on[weighting])
                columns.append(levelsOf(QStringLiteral("ZCA").mid(weighting, 1), weighted[weighting]));
        }
        if (!columns.isEmpty())
            wholeSection(title, [&] { drawLevels(columns); });
    };
    const auto level = [](const QString &subscript, const QString &value) {
        return Level{subscript, {}, levelText(value)};
    };
    figures(tr("Results"), m_ckbRes, [&](const QString &letter, const FreqWeightedOutputLevels &levels) {
        return Levels{level(letter + QLatin1String("eq"), levels.leq), level(letter + QLatin1Char('E'), levels.e),
                      level(letter + QLatin1String("peak"), levels.peak)};
    });
    figures(tr("Max/Min"), m_ckbMaxMin, [&](const QString &letter, const FreqWeightedOutputLevels &levels) {
        Levels lines;
        const QVector<LevelTimeWeightedOutput> timeWeighted = levels.timeWeighted();
        for (int time = 0; time < timeWeighted.size(); ++time) {
            const QString weightings = letter + QStringLiteral("IFS").mid(time, 1);
            lines.append(level(weightings + QLatin1String("min"), timeWeighted[time].min));
            lines.append(level(weightings + QLatin1String("max"), timeWeighted[time].max));
        }
        return lines;
    });
    if (m_ckbStatistics)
        drawStatistics(resultsOf(experiment));
}

void NembraPlusPrinter::drawStatistics(const SoundLevelResults &results)
{
    wholeSection(tr("Statistics"), [&] {
        drawTwoColumns({tr("Frequency weighting") + QLatin1String(": ") + results.freqWeighting()},
                       {tr("Time weighting") + QLatin1String(": ") + timeWeightingText(results.timeWeighting())});
        const auto column = [](const char *percentage, const QString &value) {
            return Levels{{QString::fromLatin1(percentage), {}, levelText(value)}};
        };
        drawLevels({column("05", results.l05()), column("10", results.l10()), column("50", results.l50()),
                    column("90", results.l90()), column("95", results.l95())});
    });
}

QString NembraPlusPrinter::interval(const SoundLevelResults &results) const
{
    return isManual(results) ? QStringLiteral("T") : SoundLevelPrinter::interval(results);
}

QVector<SoundLevelPrinter::FurtherColumn> NembraPlusPrinter::furtherColumns(const Experiment &experiment) const
{
    if (!isManual(resultsOf(experiment)))
        return {};
    const auto interval = [](const Log &log) { return static_cast<const NembraPlusLog &>(log).interval(); };
    return {{QStringLiteral("T"), QStringLiteral("[s]"), interval}};
}
