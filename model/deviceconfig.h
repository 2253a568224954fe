// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QObject>

/// The configuration of an instrument, as it travels between the instrument and its configuration window.
class DeviceConfig : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual QJsonObject toJson() const { return {}; }
    /// Reads the window's JSON text: 0, or -1 for a text that is no object; nothing changes then.
    [[nodiscard]] virtual int fromJson(const QString &) { return -1; }
};
