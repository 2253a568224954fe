// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/noiseprinter.h"

class Log;
class SoundLevelResults;

/// What the reports of the sound level meters share: a front page with all measuring points, and for each experiment its
/// configuration, field checks, figures, charts and records. A family says which figures it has.
class SoundLevelPrinter : public NoisePrinter
{
    Q_OBJECT

public:
    void setParameters(const QString &json) override;
    QList<VfSubSuperScript *> logTableHeader(Experiment *experiment) override;
    QList<VfTableRow *> logTableRows(Experiment *experiment) override;

protected:
    SoundLevelPrinter();

    /// A level: its symbol with indexes, and its value.
    struct Level {
        QString subscript;
        QString superscript;
        QString value;
        QString symbol = QStringLiteral("L");
    };
    using Levels = QVector<Level>;

    /// Switches that only this family has.
    virtual ReportParameters familyParameters() = 0;
    /// Levels in the table of measuring points; their values are those of \a results.
    virtual Levels pointLevels(const SoundLevelResults &results) const = 0;
    /// Sections behind the field checks: the family's figures.
    virtual void drawFigures(const Experiment &experiment) = 0;
    /// Captioned texts of the section "Configuration" that only this family has.
    virtual QStringList configurationTexts(const SoundLevelResults &results) const = 0;
    /// Captions of the checks before and after, and whether a deviation that is not known has a line.
    struct CheckWords {
        QString pre;
        QString pos;
        bool unknownDeviation;
    };
    virtual CheckWords checkWords() const = 0;
    /// Whether the charts have a page of their own.
    virtual bool chartsApart() const = 0;
    /// The curves of the octave chart that are asked for, in the order Z, C, A.
    QVector<OctaveBands::Weighting> curves() const;
    virtual bool octavesWanted() const { return true; }
    /// What one record is measured over: the index behind "eq,".
    virtual QString interval(const SoundLevelResults &results) const;
    /// A column of the log table behind the level.
    struct FurtherColumn {
        QString head;
        QString unit;
        QString (*cell)(const Log &log);
    };
    virtual QVector<FurtherColumn> furtherColumns(const Experiment &) const { return {}; }

    void drawFront() override;
    std::vector<Part> parts() override;

    static const SoundLevelResults &resultsOf(const Experiment &experiment);
    /// The value as text: overload as it stands, numbers in the style of the locale with two and two digits.
    static QString levelText(const QString &value);
    /// A column for each of \a columns, in which its levels stand one below the other.
    void drawLevels(const QVector<Levels> &columns);

private:
    bool chartsWanted(const Experiment &experiment) const;
    void drawPoints();
    void drawCertificates();
    void drawConfiguration(const Experiment &experiment);
    void drawFieldChecks(const Experiment &experiment);
    void drawCharts(const Experiment &experiment);
    void drawOctaves(const SoundLevelResults &results, OctaveBands::Weighting curve);
};
