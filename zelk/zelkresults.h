// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/results.h"
#include "zelk/physicalquantitydescriptor.h"
#include "zelk/zelkexpdata.h"

/// What the instrument evaluated of one measurement, and what it measured: the sensor module and its quantities. Figures are
/// the instrument's own texts, one for each quantity; a file or an instrument may have fewer of them than quantities.
class ZelkResults : public ResultsOf<ZelkResults>
{
    Q_OBJECT

public:
    QString label() const { return m_label; }
    /// Seconds from one record to the next.
    int sampleTime() const { return m_sampleTime; }

    /// The code of what was measured: "LUX", "GAS".
    QString sensorType() const { return m_sensorType; }
    /// The gas, of the type "GAS".
    QString sensorSubType() const { return m_sensorSubType; }
    /// What was measured, for the user; empty for a code that is not known.
    QString experimentType() const;
    QString sensorSN() const { return m_sensorSN; }
    QString sensorCertificate() const { return m_sensorCertificate; }
    QDateTime sensorCalibrationDate() const { return m_sensorCalibrationDate; }

    QStringList averageList() const { return m_averageList; }
    QStringList maxList() const { return m_maxList; }
    QStringList minList() const { return m_minList; }
    const QVector<PhysicalQuantityDescriptor> &quantitiesInfoList() const { return m_quantitiesInfoList; }
    const QVector<ZelkExpData> &configList() const { return m_configList; }
    const QVector<ZelkExpData> &evaluationResultsList() const { return m_evaluationResultsList; }

    /// Header 1, at least 12 fields. 0, or -1 for an answer that is refused.
    [[nodiscard]] int parseIdentification(const QByteArray &answer) { return readHeader(1, answer, 12); }
    /// Header 2, at least 6 fields.
    [[nodiscard]] int parseSensorData(const QByteArray &answer) { return readHeader(2, answer, 6); }
    /// Header 3, a line of at least 5 fields for each quantity: as many as the lines tell of.
    [[nodiscard]] int parseAverages(const QByteArray &answer);
    /// Header 4, the same with 6 fields.
    [[nodiscard]] int parseLimits(const QByteArray &answer);
    /// Header 5, the same with 6 fields.
    [[nodiscard]] int parseQuantities(const QByteArray &answer);
    /// Header 6, a line of at least 8 fields for each item.
    [[nodiscard]] int parseConfigItems(const QByteArray &answer);
    /// Header 7, the same.
    [[nodiscard]] int parseEvaluationItems(const QByteArray &answer);

    static const Fields<ZelkResults> &fields();

private:
    QString m_label;
    int m_sampleTime = 0;
    QString m_sensorType;
    QString m_sensorSubType;
    QString m_sensorSN;
    QString m_sensorCertificate;
    QDateTime m_sensorCalibrationDate;
    QStringList m_averageList;
    QStringList m_maxList;
    QStringList m_minList;
    QVector<PhysicalQuantityDescriptor> m_quantitiesInfoList;
    QVector<ZelkExpData> m_configList;
    QVector<ZelkExpData> m_evaluationResultsList;
};
