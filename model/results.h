// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/field.h"

#include <QObject>

class Experiment;

/// What the instrument itself computed of one experiment, and what the user's decisions add to it.
/// Owned by its Experiment. The base holds the closing record (header 8): battery, charge counter, reason of the end.
class Results : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    int vbatStart() const { return m_vbatStart; }
    int vbatStop() const { return m_vbatStop; }
    int coulombCounterStart() const { return m_coulombCounterStart; }
    int coulombCounterStop() const { return m_coulombCounterStop; }
    QString stopReason() const { return m_stopReason; }

    /// The results as they stand in files and on the pages.
    virtual QJsonObject toJson() const { return {}; }
    virtual int refreshWorkingHours(const QString &expParam);
    virtual int refreshPartialResults(const QJsonObject &component);
    virtual int refreshGeneralData(const QJsonObject &data);
    virtual int recomputeExposure(Experiment *first);
    virtual int resetResults() { return 0; }
    /// Reads what toJson() wrote.
    virtual void fromJson(const QJsonObject &) {}

    /// Reads the answer to "AT+VFXPHDR=8,": 0, or -1 below 7 fields or with a foreign number in front.
    [[nodiscard]] int parseClosingRecord(const QByteArray &text);

protected:
    /// The members that the closing record carries; families write and read them beside their own.
    static const Fields<Results> &closingFields();

private:
    int m_vbatStart = 0;
    int m_vbatStop = 0;
    int m_coulombCounterStart = 0;
    int m_coulombCounterStop = 0;
    QString m_stopReason;
};
