// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelklog.h"

const Fields<ZelkLog> &ZelkLog::fields()
{
    static const Fields<ZelkLog> rows = {
        {"date", InRecord, 5, &ZelkLog::m_registerDate},
        {"physicalQuantitiesList", NotOnWire, 0, &ZelkLog::m_physicalQuantitiesList},
    };
    return rows;
}

int ZelkLog::parse(const QByteArray &line)
{
    const Pieces record = recordPieces(line);
    if (record.size() < 6)
        return 1;
    if (record[4].toInt() == 0)
        m_registerDate = wireMoment(record, 5);
    else
        m_physicalQuantitiesList.append(sharedText(wireText(record[5], Form::Plain)));
    return 0;
}
