// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/zelkexpdata.h"

#include "zelk/codetext.h"

#include <cmath>

namespace {

constexpr char Context[] = "ZelkExpData";

constexpr CodeText labels[] = {
    {"LAMP", QT_TRANSLATE_NOOP("ZelkExpData", "Light source type")},
    {"TWA", QT_TRANSLATE_NOOP("ZelkExpData", "TWA")},
};

constexpr CodeText values[] = {
    {"SUN", QT_TRANSLATE_NOOP("ZelkExpData", "Sun light")},
    {"INCAN", QT_TRANSLATE_NOOP("ZelkExpData", "Incandescent light bulb")},
    {"FLUOR", QT_TRANSLATE_NOOP("ZelkExpData", "Fluorescent")},
    {"LED", QT_TRANSLATE_NOOP("ZelkExpData", "LED")},
    {"OF", QT_TRANSLATE_NOOP("ZelkExpData", "Optical fiber lamp")},
    {"DISC", QT_TRANSLATE_NOOP("ZelkExpData", "Discharge lamp")},
    {"HALO", QT_TRANSLATE_NOOP("ZelkExpData", "Halogen lamp")},
    {"NEON", QT_TRANSLATE_NOOP("ZelkExpData", "Neon lamp")},
};

/// The value, whose kind the type in front of it tells.
struct DataValue final : Nested<ZelkExpData> {
    static bool isNumber(const ZelkExpData &item) { return item.type == QLatin1String("f"); }

    QJsonValue toJson(const ZelkExpData &item) const override { return QJsonValue::fromVariant(item.dataValue); }
    void writeText(const ZelkExpData &item, JsonText &out) const override { out.value(toJson(item)); }
    void fromJson(ZelkExpData &item, const QJsonValue &value) const override
    {
        if (!isNumber(item))
            item.dataValue = value.toString();
        else if (value.isDouble())
            item.dataValue = value.toDouble();
    }
    void readPiece(ZelkExpData &item, const Pieces &pieces, int at) const override
    {
        bool ok = false;
        const float number = pieces.value(at).toFloat(&ok);
        if (!isNumber(item))
            item.dataValue = wireText(pieces.value(at), Form::Plain);
        else if (ok && std::isfinite(number))
            item.dataValue = double(number);
    }
};

} // namespace

QString ZelkExpData::labelTr() const
{
    return textOfCode(labels, Context, label, QCoreApplication::translate("ZelkExpData", "Invalid"));
}

QString ZelkExpData::valueTr() const
{
    const QString code = dataValue.toString();
    return textOfCode(values, Context, code, code);
}

const Fields<ZelkExpData> &ZelkExpData::fields()
{
    using D = ZelkExpData;
    static const Fields<D> rows = {
        {"label", InRecord, 4, &D::label},
        {"type", InRecord, 5, &D::type},
        {"dataValue", InRecord, 6, std::make_shared<DataValue>()},
        {"unity", InRecord, 7, &D::unity},
    };
    return rows;
}
