// SPDX-License-Identifier: GPL-3.0-or-later
#include "thalvex4/thalvex4experiment.h"

void Thalvex4Experiment::setExpName(const QString &name)
{
    if (m_expName == name)
        return;
    m_expName = name;
    emit experimentNameChanged();
}

void Thalvex4Experiment::copyFrom(const Experiment *other)
{
    Experiment::copyFrom(other);
    if (const auto named = qobject_cast<const Thalvex4Experiment *>(other))
        setExpName(named->expName());
}

int Thalvex4Experiment::parseHeader(const QByteArray &line)
{
    const Pieces list = parseListLine(line, 6);
    if (list.isEmpty())
        return -1;
    setExpName(wireText(list[5], Form::Plain));
    return 0;
}

QJsonObject Thalvex4Experiment::summary() const
{
    QJsonObject object = Experiment::summary();
    object.insert(QLatin1String("expName"), m_expName);
    return object;
}

void Thalvex4Experiment::fromJson(const QJsonObject &body)
{
    Experiment::fromJson(body);
    setExpName(body[QLatin1String("expName")].toString());
}
