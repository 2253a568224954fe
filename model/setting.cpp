// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/setting.h"

#include "model/clocktext.h"
#include "model/field.h"

QString settingText(QByteArray payload, SettingForm form)
{
    switch (form) {
    case SettingForm::MinuteSecond:
        return QString::asprintf("%02d:%02d", payload.toInt() / 60, payload.toInt() % 60);
    case SettingForm::HourMinute:
        return QString::asprintf("%02d:%02d", payload.toInt() / 3600, payload.toInt() / 60 % 60);
    case SettingForm::Degree:
        return wireText(payload.replace('"', ""), Form::Degree);
    case SettingForm::Quoted:
    case SettingForm::Whole:
        break;
    }
    return QString::fromLatin1(payload.replace('"', ""));
}

QByteArray settingWire(const QString &text, SettingForm form)
{
    switch (form) {
    case SettingForm::MinuteSecond:
        return QByteArray::number(minuteSecondSeconds(text));
    case SettingForm::HourMinute:
        return QByteArray::number(hourMinuteSeconds(text));
    case SettingForm::Degree:
        return '"' + text.mid(1).toLatin1() + '"';
    case SettingForm::Quoted:
        return '"' + text.toLatin1() + '"';
    case SettingForm::Whole:
        break;
    }
    return text.toLatin1();
}
