// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "soundlevel/soundlevelresults.h"

/// What one time weighting shows of one frequency weighting, in dB.
struct LevelTimeWeightedOutput {
    QString min;
    QString max;
    QDateTime maxDateTime;

    /// The frequency weighting stands in place of the first "%" of a key, the time weighting in place of the second.
    static const Fields<LevelTimeWeightedOutput> &fields();
};

/// What one frequency weighting shows, in dB.
struct FreqWeightedOutputLevels {
    QString leq;
    QString e;
    QString peak;
    LevelTimeWeightedOutput impulse;
    LevelTimeWeightedOutput fast;
    LevelTimeWeightedOutput slow;

    /// Those of I, F and S.
    QVector<LevelTimeWeightedOutput> timeWeighted() const { return {impulse, fast, slow}; }
    /// Puts "OL" in place of all levels; the dates stay.
    void markOverload();

    /// The frequency weighting stands in place of the "%": "LZEq".
    static const Fields<FreqWeightedOutputLevels> &fields();
};

/// The summary of one measurement in all weightings at once. The levels without a weighting of their own (lEq, lMax, lMin,
/// lFMax, lMaxDateTime, SEL, lPeak) come from no header: they are empty behind a download and pass through files as they are.
class NembraPlusResults : public ResultsOf<NembraPlusResults, SoundLevelResults>
{
    Q_OBJECT

public:
    /// Those of Z, C and A.
    QVector<FreqWeightedOutputLevels> freqWeightedOutput() const { return {m_z, m_c, m_a}; }
    /// "AUTO", or "MANUAL": each record is as long as it says itself, and the sample time is "---".
    QString mode() const { return m_mode; }
    /// As the instrument told; behind a file only the levels show it.
    bool isOverloaded() const { return m_overloaded; }

    /// General data: at least 13 fields; the mode comes with 16. 0, or -1 for an answer that is refused.
    [[nodiscard]] int parseHeader1(const QByteArray &answer);
    /// Levels in three lines, of the weightings Z, C and A; neither their numbers nor their lengths are looked at.
    [[nodiscard]] int parseHeader2(const QByteArray &answer);
    /// Statistics: at least 7 fields.
    [[nodiscard]] int parseHeader5(const QByteArray &answer);

    static const Fields<NembraPlusResults> &fields();

private:
    FreqWeightedOutputLevels m_z;
    FreqWeightedOutputLevels m_c;
    FreqWeightedOutputLevels m_a;
    QString m_mode = QStringLiteral("AUTO");
    bool m_overloaded = false;
};
