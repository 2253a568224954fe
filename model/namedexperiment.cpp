// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/namedexperiment.h"

void NamedExperiment::setExpName(const QString &name)
{
    if (m_expName == name)
        return;
    m_expName = name;
    emit experimentNameChanged();
}

void NamedExperiment::copyFrom(const Experiment *other)
{
    Experiment::copyFrom(other);
    if (const auto named = qobject_cast<const NamedExperiment *>(other))
        setExpName(named->expName());
}

void NamedExperiment::readListLine(const Pieces &line)
{
    Experiment::readListLine(line);
    setExpName(wireText(line.value(5), Form::Plain));
}

QJsonObject NamedExperiment::summary() const
{
    QJsonObject object = Experiment::summary();
    object.insert(QLatin1String("expName"), m_expName);
    return object;
}

void NamedExperiment::fromJson(const QJsonObject &body)
{
    Experiment::fromJson(body);
    setExpName(body[QLatin1String("expName")].toString());
}
