// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPen>

/// The pen of rules and boxes.
inline QPen rulePen()
{
    return QPen(Qt::black, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}
