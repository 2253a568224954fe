// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/typedexperiment.h"

void TypedExperiment::setType(const QString &type)
{
    if (m_type == type)
        return;
    m_type = type;
    emit experimentTypeChanged();
}

void TypedExperiment::copyFrom(const Experiment *other)
{
    NamedExperiment::copyFrom(other);
    if (const auto typed = qobject_cast<const TypedExperiment *>(other))
        setType(typed->type());
}

void TypedExperiment::readListLine(const Pieces &line)
{
    NamedExperiment::readListLine(line);
    setType(wireText(line.value(6), Form::Plain));
}

QJsonObject TypedExperiment::summary() const
{
    QJsonObject object = NamedExperiment::summary();
    object.insert(QLatin1String("experimentType"), m_type);
    return object;
}
