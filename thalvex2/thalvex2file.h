// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/vffile.h"
#include "thalvex2/thalvex2experiment.h"

/// A file of the ending ".tvx". Of several experiments the first is read.
class Thalvex2File : public FileOf<Thalvex2Experiment, VfFile::Members::First>
{
    Q_OBJECT

public:
    explicit Thalvex2File(const QString &fileName) : FileOf(fileName, Thalvex2::Name) {}
};
