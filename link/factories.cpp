// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/factories.h"

#include "link/device.h"
#include "link/products.h"

namespace {

/// A new object by \a maker of the product called \a name.
template <class T> T *createBy(T *(*Product::*maker)(), const QString &name)
{
    const Product *product = productByName(name);
    return product && product->*maker ? (product->*maker)() : nullptr;
}

} // namespace

Device *FactoryDevice::create(const Device *plain)
{
    const Product *product = productByName(plain->productName());
    return product ? product->deviceOnPort(*plain) : nullptr;
}

Device *FactoryDevice::create(const QString &productName)
{
    return createBy(&Product::deviceWithoutPort, productName);
}

DeviceConfig *FactoryDeviceConfig::create(const QString &productName)
{
    return createBy(&Product::config, productName);
}

Experiment *FactoryExperiment::create(const QString &productName)
{
    return createBy(&Product::experiment, productName);
}

VfFile *FactoryFile::createForOpen(const QString &fileName)
{
    const Product *product = productByEnding(fileName);
    return product ? product->file(fileName) : nullptr;
}

VfFile *FactoryFile::createForSave(const QString &productName, QString fileName)
{
    const Product *product = productByName(productName);
    if (!product)
        return nullptr;
    if (!fileName.endsWith(QLatin1String(product->ending)))
        fileName += QLatin1String(product->ending);
    return product->file(fileName);
}

Log *FactoryLog::create(const QString &productName)
{
    return createBy(&Product::log, productName);
}

VfPrinter *FactoryPrinter::create(const QString &productName)
{
    return createBy(&Product::printer, productName);
}

Results *FactoryResults::create(const QString &productName)
{
    return createBy(&Product::results, productName);
}

ExposureComponent *FactoryExposureComponent::create(const QString &productName)
{
    return createBy(&Product::exposureComponent, productName);
}
