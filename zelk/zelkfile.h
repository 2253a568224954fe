// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/vffile.h"
#include "zelk/zelkexperiment.h"

/// A file of the ending ".zlk", with one experiment or several.
class ZelkFile : public FileOf<ZelkExperiment, VfFile::Members::All>
{
    Q_OBJECT

public:
    explicit ZelkFile(const QString &fileName) : FileOf(fileName, Zelk::Name) {}
};
