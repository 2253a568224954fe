// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/vffile.h"
#include "nembraplus/nembraplusexperiment.h"

/// A file of the ending ".nbp", with one experiment or several.
class NembraPlusFile : public FileOf<NembraPlusExperiment, VfFile::Members::All>
{
    Q_OBJECT

public:
    explicit NembraPlusFile(const QString &fileName) : FileOf(fileName, NembraPlus::Name) {}
};
