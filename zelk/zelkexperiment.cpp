// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelkexperiment.h"

void ZelkExperiment::setSubType(const QString &subType)
{
    if (m_subType == subType)
        return;
    m_subType = subType;
    emit experimentTypeChanged();
}

void ZelkExperiment::copyFrom(const Experiment *other)
{
    TypedExperiment::copyFrom(other);
    if (const auto zelk = qobject_cast<const ZelkExperiment *>(other))
        setSubType(zelk->subType());
}

void ZelkExperiment::readListLine(const Pieces &line)
{
    TypedExperiment::readListLine(line);
    setSubType(wireText(line.value(7), Form::Plain));
}

QJsonObject ZelkExperiment::summary() const
{
    QJsonObject object = TypedExperiment::summary();
    object.insert(QLatin1String("experimentSubType"), m_subType);
    return object;
}

int ZelkExperiment::furtherLines(const QByteArray &line) const
{
    const Pieces record = recordPieces(line);
    bool ok = false;
    const int values = record.value(3).toInt(&ok);
    return ok ? values : -1;
}
