// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/noiseprinter.h"

#include <array>

class Ardel2Results;

/// The report of one dosimeter measurement: a page of figures, one of octaves and the hearing protector, and the records.
class Ardel2Printer : public NoisePrinter
{
    Q_OBJECT

public:
    Ardel2Printer();

    void setParameters(const QString &json) override;
    QList<VfSubSuperScript *> logTableHeader(Experiment *experiment) override;
    QList<VfTableRow *> logTableRows(Experiment *experiment) override;

protected:
    void drawFront() override;
    std::vector<Part> parts() override;

private:
    const Ardel2Results &results() const;
    /// The curves of the octave chart that are asked for and can be drawn.
    QVector<OctaveBands::Weighting> curves() const;

    /// One of the checked dosimeters in each column, with the lines that \a linesOf gives of it.
    template <class LinesOf> void drawDosimeters(LinesOf linesOf);
    void drawConfiguration();
    void drawEvaluation();
    void drawCalibration();
    QStringList fieldCheckLines() const;
    QStringList laboratoryLines() const;
    void drawCharts();
    void drawHistogram();
    void drawProtector();
    void drawProtectorTable();
    void drawOctaves(OctaveBands::Weighting curve);

    std::array<bool, 3> m_ckbDosimeter{}; ///< Dos1, Dos2, USER
    bool m_ckbImpact = false;
    bool m_ckbChartHisto = false;
    bool m_ckbChartLeq = false;
    bool m_ckbHearingProtector = false;
};
