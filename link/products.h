// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <type_traits>

class Device;
class DeviceConfig;
class Experiment;
class ExposureComponent;
class Log;
class Results;
class VfFile;
class VfPrinter;

/// One product of the family of instruments: its name (the answer to "AT+CGMM"), the ending of its files, and how its
/// objects are made. Each maker hands out a new object that the caller owns.
struct Product {
    const char *name;
    const char *ending;
    Device *(*deviceOnPort)(const Device &plain);
    Device *(*deviceWithoutPort)();
    DeviceConfig *(*config)();
    Experiment *(*experiment)();
    VfFile *(*file)(const QString &path);
    Log *(*log)();
    VfPrinter *(*printer)();
    Results *(*results)();
    ExposureComponent *(*exposureComponent)(); ///< null for products that have none
};

/// What makes objects of type \a T; null for void.
template <class Base, class T> constexpr auto makerOf() -> Base *(*)()
{
    if constexpr (std::is_void_v<T>)
        return nullptr;
    else
        return []() -> Base * { return new T; };
}

/// The row of a product that is made of its family's classes; \a Printer and \a Component are void where there is none.
template <class D, class Config, class Exp, class File, class L, class Printer, class R, class Component = void>
Product productOf(const char *name, const char *ending)
{
    return {
        name,
        ending,
        [](const Device &plain) -> Device * { return new D(plain); },
        makerOf<Device, D>(),
        makerOf<DeviceConfig, Config>(),
        makerOf<Experiment, Exp>(),
        [](const QString &path) -> VfFile * { return new File(path); },
        makerOf<Log, L>(),
        makerOf<VfPrinter, Printer>(),
        makerOf<Results, R>(),
        makerOf<ExposureComponent, Component>(),
    };
}

// The table of all products stands above the families, in app/.

/// The product called exactly \a name, or null.
const Product *productByName(const QString &name);

/// The product whose files end as \a fileName does (small letters only), or null.
const Product *productByEnding(const QString &fileName);
