// SPDX-License-Identifier: GPL-3.0-or-later
#include "heatstress/heatstressconfig.h"

#include "model/field.h"

#include <QJsonDocument>

void HeatStressConfig::setUnityFromDevice(QByteArray payload)
{
    m_unity = wireText(payload.replace('"', ""), Form::Degree);
}

void HeatStressConfig::setSampleTimeFromDevice(const QByteArray &payload)
{
    const int seconds = payload.toInt();
    m_sampleTime = QString::asprintf("%02d:%02d", seconds / 60, seconds % 60);
}

QJsonObject HeatStressConfig::toJson() const
{
    return {
        {QStringLiteral("productName"), m_productName},
        {QStringLiteral("unity"), m_unity},
        {QStringLiteral("sampleTime"), m_sampleTime},
    };
}

int HeatStressConfig::fromJson(const QString &cfg)
{
    const QJsonDocument document = QJsonDocument::fromJson(cfg.toUtf8());
    if (!document.isObject())
        return -1;
    m_unity = document[QLatin1String("unity")].toString();
    m_sampleTime = document[QLatin1String("sampleTime")].toString();
    return 0;
}
