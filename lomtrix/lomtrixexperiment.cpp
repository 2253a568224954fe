// SPDX-License-Identifier: GPL-3.0-or-later
#include "lomtrix/lomtrixexperiment.h"

void LomtrixExperiment::readListLine(const Pieces &line)
{
    ExperimentOf::readListLine(line);
    if (type() == QLatin1String(" "))
        setType(QStringLiteral("H"));
}

void LomtrixExperiment::fromJson(const QJsonObject &body)
{
    ExperimentOf::fromJson(body);
    setType(body[QLatin1String("experimentType")].toString());
}
