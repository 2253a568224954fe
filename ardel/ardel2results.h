// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ardel/dosimeter.h"
#include "ardel/hearingprotector.h"
#include "model/fieldchecks.h"
#include "model/octaveband.h"
#include "model/results.h"

/// What a dosimeter found, and what of it depends on the working day that the user states: daily doses, exposure levels
/// (EL) and normalized exposure levels (NEL). Everything else is the instrument's own and stays the text that it sent.
class Ardel2Results : public ResultsOf<Ardel2Results, SecondsResults>
{
    Q_OBJECT

public:
    Ardel2Results();

    /// Name of the measurement; may be empty.
    QString label() const { return m_label; }
    /// Seconds from one record to the next.
    QString sampleTime() const { return m_sampleTime; }
    /// "1/1", "1/3" or empty.
    QString octaveAnalysis() const { return m_octaveAnalysis; }
    /// Two that the instrument is made with, and the one that the user sets: Dos1, Dos2, USER.
    QVector<Dosimeter> dosimeters() const { return {m_dos1, m_dos2, m_user}; }
    /// Number of peaks of 115 dB.
    QString nPk() const { return m_nPk; }
    /// Low to high, weighting Z; empty without octave analysis.
    const QVector<LeqPerOctave> &leqList() const { return m_spectrum.bands; }
    const FieldChecks &fieldChecks() const { return m_fieldChecks; }
    /// "hh:mm"; files begin with eight hours again.
    QString workingHours() const { return m_workingHours; }
    const HearingProtector &hearingProtector() const { return m_hearingProtector; }

    // Answers of the instrument: each gives 0, or -1 for one that is refused.
    /// The answer to "AT+VFDOSCFG?": a line of 7 pieces for each dosimeter, in any order.
    [[nodiscard]] int parseDosimeterConfig(const QByteArray &answer);
    /// Header 1, at least 9 pieces: the measurement and what the USER dosimeter was set to for it.
    [[nodiscard]] int parseIdentification(const QByteArray &answer);
    /// Headers 2, 3 and 4, of 5 pieces or 6.
    [[nodiscard]] int parseDosimeter1Results(const QByteArray &answer) { return m_dos1.parse(2, answer); }
    [[nodiscard]] int parseDosimeter2Results(const QByteArray &answer) { return m_dos2.parse(3, answer); }
    [[nodiscard]] int parseDosimeterUserResults(const QByteArray &answer) { return m_user.parse(4, answer); }
    /// Header 5, at least 12 pieces; computes what depends on the working day.
    [[nodiscard]] int parseStatistics(const QByteArray &answer);
    /// Header 6, bands, one in each line: as many as the last line tells of.
    [[nodiscard]] int parseOctaveBands(const QByteArray &answer);
    /// Header 7, at least 8 pieces.
    [[nodiscard]] int parseFieldChecks(const QByteArray &answer) { return m_fieldChecks.parse(7, answer); }

    /// Takes {"workingHours": "hh:mm"} over and computes daily doses and NEL anew: 0, or -1 for a text that is no object
    /// (nothing changes) and for a day without work (the working hours change alone).
    int refreshWorkingHours(const QString &expParam) override;
    /// Takes a hearing protector over: an object whose "datatype" is "hearingprotect".
    int refreshGeneralData(const QJsonObject &data) override;
    void setHearingProtector(const QJsonObject &data) { m_hearingProtector = HearingProtector::fromJson(data); }

    /// With "workingHours", which is not read back.
    QJsonObject toJson() const override;
    void fromJson(const QJsonObject &object) override;

    static const Fields<Ardel2Results> &fields();

private:
    static void computeExposureLevel(Dosimeter &dosimeter, double duration);
    static void computeNormalizedLevel(Dosimeter &dosimeter, double workingTime);

    QString m_label;
    QString m_sampleTime;
    QString m_octaveAnalysis;
    Dosimeter m_dos1;
    Dosimeter m_dos2;
    Dosimeter m_user;
    QString m_l10; ///< exceeded for 10 per cent of the time; dB, or "---"
    QString m_l50;
    QString m_l90;
    QString m_nPk;
    LeqSpectrum m_spectrum;
    FieldChecks m_fieldChecks;
    QString m_workingHours = QStringLiteral("08:00");
    HearingProtector m_hearingProtector;
};
