// SPDX-License-Identifier: GPL-3.0-or-later
#include "zelk/physicalquantitydescriptor.h"

#include "zelk/codetext.h"

namespace {

constexpr char Context[] = "PhysicalQuantityDescriptor";

constexpr CodeText names[] = {
    {"ILUM", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Illuminance")},
    {"UVA", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "UVA rad.")},
    {"UVB", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "UVB rad.")},
    {"UVI", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "UV Index")},
    {"ACC", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Angle")},
    {"STEL", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "STEL")},
    {"TEMP", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Temperature")},
    {"HUM", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Humidity")},
    {"PRESS", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Pressure")},
    {"IAQ", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "IAQ")},
    {"VEL", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Air velocity")},
    {"CONC", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Gas concentration")},
    {"MAGX", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Mag. (x)")},
    {"MAGY", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Mag. (y)")},
    {"MAGZ", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Mag. (z)")},
    {"MAG", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "Mag. res.")},
    {"EMFX", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "EMF (x)")},
    {"EMFY", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "EMF (y)")},
    {"EMFZ", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "EMF (z)")},
    {"EMF", QT_TRANSLATE_NOOP("PhysicalQuantityDescriptor", "EMF res.")},
};

} // namespace

QString PhysicalQuantityDescriptor::nameTr() const
{
    return textOfCode(names, Context, name, QCoreApplication::translate("PhysicalQuantityDescriptor", "Invalid"));
}

const Fields<PhysicalQuantityDescriptor> &PhysicalQuantityDescriptor::fields()
{
    using Q = PhysicalQuantityDescriptor;
    static const Fields<Q> rows = {
        {"name", InRecord, 4, &Q::name},
        {"nameTr", NotOnWire, 0, &Q::nameTr},
        {"unity", InRecord, 5, &Q::unity},
    };
    return rows;
}
