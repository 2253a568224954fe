// SPDX-License-Identifier: GPL-3.0-or-later
#include "nembra/nembraprinter.h"

#include "soundlevel/soundlevelresults.h"

namespace {

/// As it stands where there is none.
QString textOrDashes(const QString &value, QString (*text)(const QString &))
{
    return value == QLatin1String("---") ? value : text(value);
}

} // namespace

SoundLevelPrinter::Levels NembraPrinter::pointLevels(const SoundLevelResults &results) const
{
    return {
        {QStringLiteral("eq"), {}, results.lEq()},
        {QStringLiteral("AF"), tr("Max"), results.lFMax()},
        {{}, tr("Max"), results.lMax()},
        {{}, tr("Min"), results.lMin()},
    };
}

QStringList NembraPrinter::configurationTexts(const SoundLevelResults &results) const
{
    return {
        tr("Frequency weighting") + QLatin1String(": ") + results.freqWeighting(),
        tr("Time weighting") + QLatin1String(": ") + timeWeightingText(results.timeWeighting()),
    };
}

void NembraPrinter::drawFigures(const Experiment &experiment)
{
    const SoundLevelResults &results = resultsOf(experiment);
    const auto level = [](const QString &subscript, const QString &value, const QString &superscript = {}) {
        return Level{subscript, superscript, levelText(value)};
    };
    wholeSection(tr("Results"), [&] {
        drawLevels({
            {level(QStringLiteral("eq"), results.lEq()), level(QStringLiteral("AF"), results.lFMax(), tr("Max")),
             Level{{}, {}, textOrDashes(results.SEL(), levelText), QStringLiteral("SEL")}},
            {level({}, results.lMax(), tr("Max")), level({}, results.lMin(), tr("Min")),
             Level{{}, tr("Peak"), textOrDashes(results.lPeak(), levelText)}},
            {level(QStringLiteral("05"), results.l05()), level(QStringLiteral("10"), results.l10()),
             level(QStringLiteral("50"), results.l50())},
            {level(QStringLiteral("90"), results.l90()), level(QStringLiteral("95"), results.l95())},
        });
    });
}
