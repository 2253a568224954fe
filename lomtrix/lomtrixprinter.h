// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/partedprinter.h"

class LomtrixResults;
struct VibrationAxis;

/// The report of a day's vibration: a front page with the parts of the day and what they come to, and for each measurement
/// its configuration, sensor, results, chart and records.
class LomtrixPrinter : public PartedPrinter
{
    Q_OBJECT

public:
    LomtrixPrinter();

    void setParameters(const QString &json) override;
    QList<VfSubSuperScript *> logTableHeader(Experiment *experiment) override;
    QList<VfTableRow *> logTableRows(Experiment *experiment) override;

protected:
    void drawFront() override;
    std::vector<Part> parts() override;

private:
    void drawComponents();
    void drawEvaluation();
    void drawConfiguration(const Experiment &experiment);
    void drawSensor(const LomtrixResults &results);
    void drawResults(const LomtrixResults &results);
    void drawChart(const Experiment &experiment);

    /// \a caption and below it what \a results tell of X, Y and Z; \a text makes a member's text.
    void drawAxes(const QString &caption, const LomtrixResults &results, QString VibrationAxis::*member,
                  QString (*text)(const QString &value));

    bool m_ckbCalibration = false;
    bool m_ckbChart = false;
};
