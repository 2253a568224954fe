// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/log.h"

void Log::setRegisterDate(const QDateTime &date)
{
    const AtMoment moment(date);
    if (m_registerDate == moment)
        return;
    m_registerDate = moment;
    emit logItemChanged();
}

int Log::parse(const QByteArray &)
{
    return 1;
}

QJsonObject Log::toJson() const
{
    return {};
}

void Log::writeText(JsonText &out) const
{
    out.value(QJsonValue(toJson()));
}

void Log::fromJson(const QJsonObject &)
{
}

Pieces recordPieces(const QByteArray &line)
{
    const int end = line.indexOf('\0');
    return pieces(end < 0 ? line : line.left(end), "+VFRDXP: ");
}
