// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/results.h"

#include "model/clocktext.h"

const Fields<Results> &Results::closingFields()
{
    static const Fields<Results> rows = {
        {"vbatStart", 8, 2, &Results::m_vbatStart},
        {"vbatStop", 8, 3, &Results::m_vbatStop},
        {"coulombCounterStart", 8, 4, &Results::m_coulombCounterStart},
        {"coulombCounterStop", 8, 5, &Results::m_coulombCounterStop},
        {"stopReason", 8, 6, &Results::m_stopReason},
    };
    return rows;
}

int Results::parseClosingRecord(const QByteArray &text)
{
    const Pieces record = pieces(text, HeaderTag);
    if (parseHeader(*this, closingFields(), 8, record, 7) != 0)
        return -1;
    m_stopReason = QString::fromUtf8(record[6]); // the one text that instruments send as UTF-8
    return 0;
}

QJsonObject SecondsResults::toJson() const
{
    QJsonObject object = TimedResults::toJson();
    object.insert(QLatin1String("durationStr"), clockText(m_duration.toInt()));
    return object;
}

int Results::refreshWorkingHours(const QString &)
{
    return -1;
}

int Results::refreshPartialResults(const QJsonObject &)
{
    return -1;
}

int Results::refreshGeneralData(const QJsonObject &)
{
    return -1;
}

int Results::recomputeExposure(Experiment *)
{
    return -1;
}
