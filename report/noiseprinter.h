// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/fieldchecks.h"
#include "model/octavebands.h"
#include "report/partedprinter.h"

#include <optional>

/// What the reports of all noise instruments share: weightings, field checks, certificates, levels over time and octaves.
class NoisePrinter : public PartedPrinter
{
    Q_OBJECT

protected:
    explicit NoisePrinter(const QString &title);

    /// The shared switches; those of the field checks have other keys in each family.
    ReportParameters noiseParameters(const char *preCheckKey, const char *posCheckKey);

    /// "Slow", "Fast" or "Impulse" in the user's language.
    static QString timeWeightingText(const QString &weighting);
    /// The instrument's certificate and its date, or "invalid".
    QString certificateText() const;
    /// A check of \a value dB, or "--- " when it was not made.
    static QString checkText(const QString &caption, const QString &value, const QDateTime &when, bool made);
    /// Those of \a order that are asked for.
    QVector<OctaveBands::Weighting> curvesIn(std::initializer_list<OctaveBands::Weighting> order) const;

    static constexpr int ChartHeight = 150;
    /// Symbols and titles may hold "<sub>".
    struct LevelChart {
        QString title;
        QString valueTitle;
        std::optional<double> (*levelOf)(const Log &log); ///< nothing: no point
    };
    void drawLevelChart(const Experiment &experiment, const LevelChart &looks);
    struct OctaveChart {
        QVector<LeqPerOctave> bands; ///< no more than there are third octaves
        QVector<double> levels;      ///< dB, weighted
        OctaveBands::Weighting curve;
        QString symbol;
        QString frequencyTitle;
        bool thirds;
    };
    void drawOctaveChart(const OctaveChart &looks);

    bool m_ckbPreCheck = false;
    bool m_ckbPosCheck = false;
    bool m_ckbCalLab = false;
    bool m_ckbCalAudLab = false;
    QString m_audCertified;
    bool m_ckbChartLvl = false;

private:
    bool m_ckbLeqZ = false;
    bool m_ckbLeqA = false;
    bool m_ckbLeqC = false;
    bool m_ckbCalField = false; ///< read, and nothing depends on it
};
