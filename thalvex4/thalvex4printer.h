// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "heatstress/heatstressprinter.h"

class Thalvex4Results;

/// The report of one measurement with all its units: a first page for the measurement, then for each unit a page with
/// its results and chart and its log table. The CSV file beside it holds the whole chain.
class Thalvex4Printer : public HeatStressPrinter
{
    Q_OBJECT

public:
    Thalvex4Printer();

protected:
    void drawFront() override;
    std::vector<Part> parts() override;
    void writeFurtherFiles() override;
    ReportParameters familyParameters() override;
    QString sample(const Log &log, int unit, Quantity quantity) const override;

private:
    const Thalvex4Results &results() const;
    /// The main unit and its expansions.
    int unitCount() const;
    /// Averages of all units, a line for each.
    void drawEvaluation();
    void drawDeviceInfo(int unit);
    /// Extremes and averages of a unit, as far as they are switched on.
    void drawPartialResults(int unit);
    QByteArray csvOfChain() const;

    bool m_ckbResults = false;
    bool m_ckbWetTempResults = false;
    bool m_ckbDryTempResults = false;
    bool m_ckbGlobeTempResults = false;
    bool m_ckbIBUTGiResults = false;
    bool m_ckbIBUTGeResults = false;
};
