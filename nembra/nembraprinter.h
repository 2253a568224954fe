// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelprinter.h"

/// The report of measurements with the weightings that were set.
class NembraPrinter : public SoundLevelPrinter
{
    Q_OBJECT

protected:
    ReportParameters familyParameters() override { return {{"ckbChartLeq", &m_ckbChartLeq}}; }
    Levels pointLevels(const SoundLevelResults &results) const override;
    QStringList configurationTexts(const SoundLevelResults &results) const override;
    CheckWords checkWords() const override { return {tr("Pre chk."), tr("Pos chk."), false}; }
    void drawFigures(const Experiment &experiment) override;
    bool chartsApart() const override { return false; }
    bool octavesWanted() const override { return m_ckbChartLeq; }

private:
    bool m_ckbChartLeq = false;
};
