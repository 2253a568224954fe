// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/parameters.h"

#include "model/field.h"

#include <QJsonArray>

#include <algorithm>

namespace {

QVector<int> ascending(const QJsonArray &array)
{
    QVector<int> numbers;
    for (const QJsonValue &value : array) {
        if (const int number = value.toInt(-1); number >= 0)
            numbers.append(number);
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

} // namespace

void readParameters(const ReportParameters &parameters, const QJsonObject &object)
{
    for (const ReportParameter &parameter : parameters) {
        const QJsonValue value = object.value(QLatin1String(parameter.key));
        std::visit(Overloaded{
                       [&](bool *on) { *on = value.toBool(); },
                       [&](QString *text) { *text = value.toString(); },
                       [&](QVector<int> *numbers) { *numbers = ascending(value.toArray()); },
                   },
                   parameter.member);
    }
}
