// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "report/vfnormaltable.h"

/// A small table in the flow of a page whose heads have indexes.
class VfHeadedTable : public VfNormalTable
{
    Q_OBJECT

public:
    using VfNormalTable::VfNormalTable;

    using VfNormalTable::setHeader;
    /// Takes \a items over, one for each column.
    void setHeader(const QList<VfSubSuperScript *> &items) override;
    int drawHeader(int x, int y) override;
};
