// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/fieldchecks.h"
#include "model/octaveband.h"
#include "model/results.h"

/// What the sound level meters tell alike of a measurement. They compute every level themselves; levels are in dB and stay
/// the texts that were sent. `duration` is in whole seconds.
class SoundLevelResults : public ResultsOf<SoundLevelResults, SecondsResults>
{
    Q_OBJECT

public:
    /// Name of the task.
    QString label() const { return m_label; }
    /// Seconds from one record to the next.
    QString sampleTime() const { return m_sampleTime; }
    /// "Slow", "Fast" or "Impulse".
    QString timeWeighting() const { return m_timeWeighting; }
    /// "A", "C" or "Z".
    QString freqWeighting() const { return m_freqWeighting; }
    /// "1/1", "1/3", or another text without octaves.
    QString octaveAnalysis() const { return m_octaveAnalysis; }

    QString lEq() const { return m_lEq; }
    /// Highest and lowest with the weightings that were set.
    QString lMax() const { return m_lMax; }
    QString lMin() const { return m_lMin; }
    /// Highest with the time weighting Fast.
    QString lFMax() const { return m_lFMax; }
    QDateTime lMaxDateTime() const { return m_lMaxDateTime; }
    /// Sound exposure level, or "---".
    QString SEL() const { return m_SEL; }
    /// "---" when there is none.
    QString lPeak() const { return m_lPeak; }
    /// Exceeded for that part of the time: 5 to 95 per cent.
    QString l05() const { return m_l05; }
    QString l10() const { return m_l10; }
    QString l50() const { return m_l50; }
    QString l90() const { return m_l90; }
    QString l95() const { return m_l95; }

    /// Low to high, weighting Z; empty without octave analysis.
    const QVector<LeqPerOctave> &leqList() const { return m_spectrum.bands; }
    const FieldChecks &fieldChecks() const { return m_fieldChecks; }

    /// General data: at least 13 fields. 0, or -1 for an answer that is refused.
    [[nodiscard]] int parseHeader1(const QByteArray &answer) { return readHeader(1, answer, 13); }
    /// Bands, one in each line: as many as the last line tells of.
    [[nodiscard]] int parseHeader3(const QByteArray &answer);
    /// Field checks: at least 8 fields.
    [[nodiscard]] int parseHeader4(const QByteArray &answer) { return m_fieldChecks.parse(4, answer); }
    /// Statistics: at least 7 fields.
    [[nodiscard]] int parseHeader5(const QByteArray &answer) { return readHeader(5, answer, 7); }

    void fromJson(const QJsonObject &object) override;

    static const Fields<SoundLevelResults> &fields();

protected:
    QString m_label;
    QString m_sampleTime;
    QString m_timeWeighting;
    QString m_freqWeighting;
    QString m_octaveAnalysis;
    QString m_lEq;
    QString m_lMax;
    QString m_lMin;
    QString m_lFMax;
    QDateTime m_lMaxDateTime;
    QString m_SEL;
    QString m_lPeak;
    QString m_l05;
    QString m_l10;
    QString m_l50;
    QString m_l90;
    QString m_l95;

private:
    LeqSpectrum m_spectrum;
    FieldChecks m_fieldChecks;
};
