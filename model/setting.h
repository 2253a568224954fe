// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/deviceconfig.h"
#include "model/jsontext.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QVector>

#include <variant>

// A setting of an instrument is described once, by a row that names its command, its key and its member. Reading it from
// the instrument, writing it there, and its way to and from the configuration window all walk the same table.

/// How a setting stands on the wire and in the configuration.
enum class SettingForm {
    Quoted,       ///< a text in double quotes; without them in the configuration
    Whole,        ///< a whole number
    Degree,       ///< a quoted letter; behind a degree sign in the configuration: "°C"
    MinuteSecond, ///< seconds; "mm:ss" in the configuration
    HourMinute,   ///< seconds; "hh:mm" in the configuration, what is beyond a whole minute dropped
};

/// The text that a configuration keeps of \a payload, an answer's data.
QString settingText(QByteArray payload, SettingForm form);

/// \a text as a command carries it, quotes included. ISO 8859-1.
QByteArray settingWire(const QString &text, SettingForm form);

template <class C> struct Setting {
    const char *command; ///< "VFINTVL": read with "AT+VFINTVL?", written with "AT+VFINTVL="; null: neither
    const char *key;     ///< in the configuration window's JSON text
    std::variant<QString C::*, int C::*, bool C::*> member;
    SettingForm form = SettingForm::Quoted;
    int serviceBit = 0;    ///< bit of the service setting without which an instrument does not have it
    bool readBack = false; ///< read again after it is written, for the instrument may keep another value

    /// Takes over \a payload, an answer's data.
    void read(C &config, const QByteArray &payload) const
    {
        if (const auto *text = std::get_if<QString C::*>(&member))
            config.*(*text) = settingText(payload, form);
        else if (const auto *number = std::get_if<int C::*>(&member))
            config.*(*number) = settingText(payload, form).toInt();
    }

    /// The value of \a config as a command carries it.
    QByteArray wire(const C &config) const
    {
        if (const auto *text = std::get_if<QString C::*>(&member))
            return settingWire(config.*(*text), form);
        const auto *number = std::get_if<int C::*>(&member);
        return number ? QByteArray::number(config.*(*number)) : QByteArray();
    }
};
template <class C> using Settings = QVector<Setting<C>>;

/// A configuration that is described by its table: \a C has `static const Settings<C> &settings()` for this base to use.
template <class C> class DeviceConfigOf : public DeviceConfig
{
public:
    explicit DeviceConfigOf(const QString &productName) : m_productName(productName) {}

    /// "productName" and the settings.
    QJsonObject toJson() const override
    {
        QJsonObject object{{QStringLiteral("productName"), m_productName}};
        for (const Setting<C> &setting : C::settings()) {
            const auto value = [this](auto member) { return QJsonValue(static_cast<const C &>(*this).*member); };
            object.insert(QLatin1String(setting.key), std::visit(value, setting.member));
        }
        return object;
    }

    /// A key that is missing reads as empty. Numbers come from the window as texts.
    [[nodiscard]] int fromJson(const QString &cfg) override
    {
        const std::optional<QJsonObject> object = objectOfText(cfg);
        if (!object)
            return -1;
        C &self = static_cast<C &>(*this);
        for (const Setting<C> &setting : C::settings()) {
            const QJsonValue value = object->value(QLatin1String(setting.key));
            if (const auto *text = std::get_if<QString C::*>(&setting.member))
                self.*(*text) = value.toString();
            else if (const auto *number = std::get_if<int C::*>(&setting.member))
                self.*(*number) = value.toString().toInt();
            else
                self.*std::get<bool C::*>(setting.member) = value.toBool();
        }
        return 0;
    }

private:
    QString m_productName;
};
