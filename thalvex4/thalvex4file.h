// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/vffile.h"
#include "thalvex4/thalvex4.h"

/// A file of the ending ".tv4", with one experiment or several.
class Thalvex4File : public VfFile
{
    Q_OBJECT

public:
    using VfFile::VfFile;

    Experiment *parseExperiment(QByteArray content) override
    {
        return readExperiments(content, Thalvex4::Name, Members::All);
    }
    bool isForeignProduct(const QString &name) const override { return name != Thalvex4::Name; }
};
