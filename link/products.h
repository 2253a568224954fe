// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

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

// The table of all products stands above the families, in app/.

/// The product called exactly \a name, or null.
const Product *productByName(const QString &name);

/// The product whose files end as \a fileName does (small letters only), or null.
const Product *productByEnding(const QString &fileName);
