// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lomtrix/vibrationexposure.h"
#include "model/octaveband.h"
#include "model/results.h"

/// What a measurement tells of one axis. Texts as sent, or "---".
struct VibrationAxis {
    QString freqWeighting;
    QString f;    ///< multiplying factor k
    QString vdv;  ///< vibration dose value, m/s^1.75
    QString fc;   ///< crest factor
    QString aMax; ///< accelerations, m/s²: highest and lowest
    QString aMin;
    QString ap;   ///< peak
    QString app;  ///< passed through to files alone
    QString am;   ///< average
    QString sensitivity; ///< of the sensor, mV/g
    double vdvExposed = 0; ///< dose of the exposure time, k included; not from the instrument

    /// The axis' letter stands in place of the "%": "aMaxX".
    static const Fields<VibrationAxis> &fields();
};

/// The evaluation of the day that the experiments of a chain are parts of.
struct VibrationEvaluation {
    QString workingHours = QStringLiteral("08:00"); ///< length of the working day, "hh:mm"
    VibrationExposure::Day day;
    double are = 0;  ///< acceleration over the working day, m/s²
    double aren = 0; ///< the same over eight hours
};

/// The summary of one measurement. The instrument computes it and the suite adds, from the exposure times that the user
/// gives the measurements, the evaluation of the day. There is one evaluation at a time, which all results share; it
/// begins anew with each results object that is made, that is, with a download or a file.
class LomtrixResults : public ResultsOf<LomtrixResults, SecondsResults>
{
    Q_OBJECT

public:
    LomtrixResults();

    /// Name of the task.
    QString label() const { return m_label; }
    /// Seconds from one record to the next.
    QString sampleTime() const { return m_sampleTime; }
    /// "Slow" or "Fast".
    QString timeWeighting() const { return m_timeWeighting; }
    /// "0" whole body, "1" hand and arm.
    QString evaluationType() const { return m_evaluationType; }
    /// Weighted acceleration that stands for the measurement, m/s².
    QString arep() const { return m_arep; }
    const VibrationAxis &x() const { return m_x; }
    const VibrationAxis &y() const { return m_y; }
    const VibrationAxis &z() const { return m_z; }
    /// Low to high.
    const QVector<AmrPerOctave> &amrList() const { return m_spectrum.bands; }
    QString sensorLabel() const { return m_sensorLabel; }
    QString sensorSN() const { return m_sensorSN; }
    /// How long a day the measured task is done, "hh:mm"; empty until the user says so.
    QString exposureTime() const { return m_exposureTime; }
    /// Whether the duration is a number above 0: else no dose of an exposure time can be told.
    bool hasDuration() const;

    static const VibrationEvaluation &evaluation();

    /// General data: at least 18 fields. 0, or -1 for an answer that is refused.
    [[nodiscard]] int parseHeader1(const QByteArray &answer);
    /// Acceleration and doses: at least 9 fields.
    [[nodiscard]] int parseHeader2(const QByteArray &answer) { return readHeader(2, answer, 9); }
    /// Statistics of the acceleration: at least 17 fields.
    [[nodiscard]] int parseHeader3(const QByteArray &answer) { return readHeader(3, answer, 17); }
    /// Bands, one in each line: as many as the last line tells of.
    [[nodiscard]] int parseHeader4(const QByteArray &answer)
    {
        return m_spectrum.parse(4, answer, ForeignLine::EndsTheWalk);
    }
    /// Sensor: at least 7 fields.
    [[nodiscard]] int parseHeader5(const QByteArray &answer) { return readHeader(5, answer, 7); }

    /// With what the suite computed, which is not read back.
    QJsonObject toJson() const override;

    /// Takes the working day "hh:mm" of JSON object {"workingHours"}: 0, or -1 for a text that is no object, and for a
    /// working day that is not above 0, which is kept all the same while are stays as it was.
    int refreshWorkingHours(const QString &expParam) override;
    /// Takes the "exposureTime" of \a component, "hh:mm", and computes the doses: 0, or -1 without a usable duration; the
    /// time is kept and the doses stay as they were then.
    int refreshPartialResults(const QJsonObject &component) override;
    /// Evaluates the day of the chain that begins at \a first. 0.
    int recomputeExposure(Experiment *first) override;

    static const Fields<LomtrixResults> &fields();

private:
    VibrationExposure::Component component() const;

    QString m_label;
    QString m_sampleTime;
    QString m_timeWeighting;
    QString m_evaluationType;
    QString m_profile;
    QString m_arep;
    VibrationAxis m_x;
    VibrationAxis m_y;
    VibrationAxis m_z;
    AmrSpectrum m_spectrum;
    QString m_sensorLabel;
    QString m_sensorSN;
    QString m_exposureTime;

    static VibrationEvaluation s_evaluation;
};
