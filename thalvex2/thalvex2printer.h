// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressprinter.h"

/// The report of one measurement: a page with its data, results, calibration and chart, then its log table, and a CSV
/// file beside it.
class Thalvex2Printer : public HeatStressPrinter
{
    Q_OBJECT

public:
    Thalvex2Printer();

    QList<VfTableRow *> logTableRows(Experiment *experiment) override;

protected:
    void drawFront() override;
    std::vector<Part> parts() override;
    void writeFurtherFiles() override;
    ReportParameters familyParameters() override;
    QString sample(const Log &log, int unit, Quantity quantity) const override;

private:
    /// Extremes of the temperatures and averages of WBGT, as far as they are switched on.
    void drawEvaluation();
    void drawCalibration();

    bool m_ckbMaxMin = false;
    bool m_ckbAvg = false;
};
