// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelprinter.h"

/// The report of measurements in all weightings at once.
class NembraPlusPrinter : public SoundLevelPrinter
{
    Q_OBJECT

protected:
    ReportParameters familyParameters() override;
    Levels pointLevels(const SoundLevelResults &results) const override;
    QStringList configurationTexts(const SoundLevelResults &) const override { return {}; }
    CheckWords checkWords() const override { return {tr("Pre check"), tr("Pos check"), true}; }
    void drawFigures(const Experiment &experiment) override;
    bool chartsApart() const override { return true; }
    QString interval(const SoundLevelResults &results) const override;
    QVector<FurtherColumn> furtherColumns(const Experiment &experiment) const override;

private:
    /// Frequency weightings, in the order in which all of them are told.
    enum Weighting { Z, C, A, WeightingCount };

    void drawStatistics(const SoundLevelResults &results);

    bool m_ckbRes[WeightingCount] = {};
    bool m_ckbMaxMin[WeightingCount] = {};
    bool m_ckbStatistics = false;
};
