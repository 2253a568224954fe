// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/parameters.h"

#include "model/field.h"

void readParameters(const ReportParameters &parameters, const QJsonObject &object)
{
    for (const ReportParameter &parameter : parameters) {
        const QJsonValue value = object.value(QLatin1String(parameter.key));
        std::visit(Overloaded{
                       [&](bool *on) { *on = value.toBool(); },
                       [&](QString *text) { *text = value.toString(); },
                   },
                   parameter.member);
    }
}
