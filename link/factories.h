// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class Device;
class DeviceConfig;
class Experiment;
class ExposureComponent;
class Log;
class Results;
class VfFile;
class VfPrinter;

// What makes the objects of a product. All of them hand out a new object that the caller owns, and null for a product
// name (compared exactly) or a file ending that nobody knows.

struct FactoryDevice {
    /// The family's object on the port of \a plain, by its product name.
    static Device *create(const Device *plain);
    /// The family's object for a file, with no port.
    static Device *create(const QString &productName);
};

class FactoryDeviceConfig : public QObject
{
    Q_OBJECT

public:
    static DeviceConfig *create(const QString &productName);
};

struct FactoryExperiment {
    static Experiment *create(const QString &productName);
};

struct FactoryFile {
    /// By the ending of \a fileName, in small letters.
    static VfFile *createForOpen(const QString &fileName);
    /// The product's ending is appended to \a fileName unless it is there.
    static VfFile *createForSave(const QString &productName, QString fileName);
};

struct FactoryLog {
    static Log *create(const QString &productName);
};

struct FactoryPrinter {
    static VfPrinter *create(const QString &productName);
};

struct FactoryResults {
    static Results *create(const QString &productName);
};

class FactoryExposureComponent : public QObject
{
    Q_OBJECT

public:
    /// Null also for products that have no exposure component.
    static ExposureComponent *create(const QString &productName);
};
