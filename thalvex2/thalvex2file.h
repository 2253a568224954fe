// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/vffile.h"
#include "thalvex2/thalvex2.h"

/// A file of the ending ".tvx". Of several experiments the first is read.
class Thalvex2File : public VfFile
{
    Q_OBJECT

public:
    using VfFile::VfFile;

    Experiment *parseExperiment(QByteArray content) override
    {
        return readExperiments(content, Thalvex2::Name, Members::First);
    }
    bool isForeignProduct(const QString &name) const override { return name != Thalvex2::Name; }
};
